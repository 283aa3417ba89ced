#include <array>

#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;

constexpr int kNone = -1;

// What a button does, and where it stands in the thematic, the statistics and the data row.
struct Button {
  std::string toolTip;
  std::string statement;
  std::string label;  // empty: the label is left as it is
  std::array<int, 3> index;
};

const std::vector<Button> kButtons{
    {"Zoom+", "run menu command 1705", "Zoom+", {0, kNone, 0}},
    {"Zoom+", "run menu command 1705", "Zoom +", {kNone, 0, kNone}},
    {"Zoom-", "run menu command 1706", "Zoom-", {1, 1, 1}},
    {"Desplazamiento", "run menu command 1702", "Desplazamiento", {2, 2, 2}},
    {"Información", "run menu command ID 2001", "Información", {3, kNone, kNone}},
    {"Información", "run menu command ID 2002", "Información", {kNone, 3, kNone}},
    {"Información", "run menu command ID 2003", "Información", {kNone, kNone, 3}},
    {"Etiquetado", "run menu command 1708", "Etiquetado", {5, 7, 9}},
    {"Medir Distancias", "run menu command 1710", "Medir Distancias", {6, kNone, 5}},
    {"Medir distancias", "run menu command 1710", "Medir Distancias", {kNone, 5, kNone}},
    {"Arrastrar Mapa a otra aplicación", "run menu command 1734", "Arrastrar ventana", {7, 6, 6}},
    {"Imprimir Mapa", "run menu command 112", "", {8, 8, 7}},
    {"Ver Mapa Completo", "set map zoom entire", "", {12, kNone, 10}},
    {"Ver Mapa Completo", "Set map zoom entire", "", {kNone, 10, kNone}},
};

class Toolbars : public testing::Program {
 protected:
  // `column` is the row's place in a button's indexes.
  void expectRow(const forms::ImageArray& row, std::size_t column) {
    for (const Button& button : kButtons) {
      const int index = button.index.at(column);
      if (index == kNone) continue;
      row.at(index).userClick();
      Lines lines{"do " + button.statement};
      if (!button.label.empty()) lines.push_back("set lblComando.Caption \"Comando actual: " + button.label + "\"");
      EXPECT_EQ(world.take(), lines) << row.at(index).name();
      EXPECT_EQ(row.at(index).toolTipText, button.toolTip);
    }
    EXPECT_THROW(static_cast<void>(row.at(4)), Failure);
  }
};

TEST_F(Toolbars, ThematicRow) {
  startOnTab(1);
  expectRow(main().Image2, 0);
  EXPECT_EQ(main().Image2.indices(), (std::vector{0, 1, 2, 3, 5, 6, 7, 8, 9, 10, 11, 12}));
}

TEST_F(Toolbars, StatisticsRow) {
  start();
  expectRow(main().Image3, 1);
}

TEST_F(Toolbars, DataRow) {
  startOnTab(2);
  expectRow(main().Image4, 2);
}

TEST_F(Toolbars, EachImageHasItsToolTip) {
  struct Row {
    const forms::ImageArray& images;
    std::vector<std::string> toolTips;  // by index, "" where there is no image
  };
  const std::vector<Row> rows{
      {main().Image2,
       {"Zoom+", "Zoom-", "Desplazamiento", "Información", "", "Etiquetado", "Medir Distancias",
        "Arrastrar Mapa a otra aplicación", "Imprimir Mapa", "Ayuda", "Mostrar/Ocultar selector de mapa",
        "Mostrar/Ocultar Leyenda", "Ver Mapa Completo"}},
      {main().Image3,
       {"Zoom+", "Zoom-", "Desplazamiento", "Información", "", "Medir distancias", "Arrastrar Mapa a otra aplicación",
        "Etiquetado", "Imprimir Mapa", "Ayuda", "Ver Mapa Completo"}},
      {main().Image4,
       {"Zoom+", "Zoom-", "Desplazamiento", "Información", "", "Medir Distancias", "Arrastrar Mapa a otra aplicación",
        "Imprimir Mapa", "Ayuda", "Etiquetado", "Ver Mapa Completo"}},
  };
  for (const Row& row : rows) {
    std::vector<std::string> toolTips(row.toolTips.size());
    for (const int index : row.images.indices()) {
      toolTips.at(static_cast<std::size_t>(index)) = row.images.at(index).toolTipText;
    }
    EXPECT_EQ(toolTips, row.toolTips);
  }
}

TEST_F(Toolbars, HelpLeavesTheLabel) {
  start();
  for (forms::Image* help : {&main().Image2.at(9), &main().Image3.at(9), &main().Image4.at(8)}) {
    EXPECT_EQ(help->toolTipText, "Ayuda");
    help->userClick();
    EXPECT_EQ(world.take(), (Lines{"help C:\\Estudio\\Ayuda\\Ayuda.hlp 3"}));
  }
}

TEST_F(Toolbars, AnIndexBeyondTheRowDoesNothing) {
  start();
  main().Image2.Click.raise(13);
  main().Image3.Click.raise(11);
  main().Image4.Click.raise(11);
  main().Image4.Click.raise(4);
  EXPECT_EQ(world.take(), Lines{});
}

TEST_F(Toolbars, SelectorIsToggled) {
  startOnTab(1);
  main().Image2.at(10).userClick();
  EXPECT_EQ(world.take({"find", "hide", "unload", "load", "show", "zorder"}),
            (Lines{"find Seleccionar mapa temático found", "hide frmTematicos", "unload frmTematicos"}));
  main().Image2.at(10).userClick();
  EXPECT_EQ(world.take({"find", "hide", "unload", "load", "show", "zorder"}),
            (Lines{"find Seleccionar mapa temático none", "load frmTematicos", "show frmTematicos",
                   "zorder 300 topmost 19"}));
}

TEST_F(Toolbars, LegendIsOpenedUnlessTheEngineSaysT) {
  startOnTab(1);
  const std::vector<std::pair<std::string, std::string>> answers{
      {"T", "do close window legend"}, {"F", "do open window legend"}, {"", "do open window legend"}};
  for (const auto& [answer, statement] : answers) {
    world.answers["windowinfo(1009,11)"] = answer;
    main().Image2.at(11).userClick();
    EXPECT_EQ(world.take(), (Lines{"eval Windowinfo(1009,11) = " + answer, statement}));
  }
}

TEST_F(Toolbars, AFailureLeavesTheLabelInSilence) {
  start();
  world.failAt("do run menu command 1705", failures::kEngineRejected);
  main().Image3.at(0).userClick();
  EXPECT_EQ(world.take({"set lblComando", "msgbox"}), Lines{});
}

}  // namespace
}  // namespace atlas
