#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;

const std::string kPages = "navigate C:\\Estudio\\Tablas\\HTML\\";
const std::string kChooseAll =
    "msgbox 48 [Mortalidad en Veldoria] Seleccione todos los parámetros requeridos por favor.";

class TableBrowser : public testing::Program {
 protected:
  TableBrowser() { world.folderNames[inFolder("\\Tablas\\Tematicos\\1999\\Ambos sexos")] = {"Norte"}; }
  void SetUp() override { startOnTab(0); }
};

TEST_F(TableBrowser, EachTableHasItsOwnPath) {
  pick(main().ComboTipo, "Lista reducida");
  pick(main().ComboAño, "2001");
  pick(main().ComboSexo, "Mujeres");
  pick(main().ComboProvincia, "Norte");
  const std::vector<std::string> pages{"0\\Lista reducida\\2001 - Mujeres.html",
                                       "1\\Lista reducida\\2001 - Norte - Mujeres.html", "2\\2001 - Mujeres.html",
                                       "3\\2001 - Mujeres.html", "4\\2001 - Mujeres.html"};
  for (int table = 0; table < 5; ++table) {
    world.lines.clear();
    main().ComboTabla.userPick(table);
    const std::string& page = pages[static_cast<std::size_t>(table)];
    EXPECT_EQ(world.take({"navigate"}), (Lines{kPages + page}));
    EXPECT_EQ(atlas.archivotabla, inFolder("\\Tablas\\HTML\\" + page));
  }
}

TEST_F(TableBrowser, EveryBoxOpensTheTable) {
  pick(main().ComboTabla, "Defunciones y Tasas específicas por provincias");
  for (forms::EditableCombo* combo : {&main().ComboTipo, &main().ComboProvincia, &main().ComboSexo, &main().ComboAño}) {
    world.lines.clear();
    combo->userPick(0);
    EXPECT_EQ(world.take(), (Lines{kPages + "1\\Grandes grupos\\1999 - Veldoria - Ambos sexos.html"}));
  }
  world.lines.clear();
  main().imgBuscaTabla.userClick();
  EXPECT_EQ(world.take(), (Lines{kPages + "1\\Grandes grupos\\1999 - Veldoria - Ambos sexos.html"}));
}

TEST_F(TableBrowser, OnlyTheTypeBoxAnswersWhileTheSelectorsArePutBack) {
  main().TablasListas = false;
  for (forms::EditableCombo* combo :
       {&main().ComboTabla, &main().ComboProvincia, &main().ComboSexo, &main().ComboAño}) {
    combo->userPick(0);
  }
  EXPECT_EQ(world.take(), Lines{});
  main().ComboTipo.userPick(0);
  EXPECT_EQ(world.take(), (Lines{kPages + "0\\Grandes grupos\\1999 - Ambos sexos.html"}));
}

TEST_F(TableBrowser, BoxesThatATableDoesNotUseAreHidden) {
  const std::vector<std::pair<bool, bool>> shown{
      {true, false}, {true, true}, {false, false}, {false, false}, {false, false}};
  for (int table = 0; table < 5; ++table) {
    main().ComboTabla.userPick(table);
    EXPECT_EQ(main().ComboTipo.visible(), shown[static_cast<std::size_t>(table)].first) << table;
    EXPECT_EQ(main().ComboProvincia.visible(), shown[static_cast<std::size_t>(table)].second) << table;
  }
}

// The boxes as stored, with nothing chosen in them.
class UntouchedTableBrowser : public testing::Program {
 protected:
  void SetUp() override {
    start();
    main().TablasListas = true;
  }
};

TEST_F(UntouchedTableBrowser, AMissingChoiceIsSaidExceptForTheThirdTable) {
  const std::vector<Lines> messages{
      {"msgbox 64 [Mortalidad en Veldoria] Seleccione los parámetros requeridos por favor."},
      {kChooseAll},
      {},
      {kChooseAll},
      {kChooseAll}};
  for (int table = 0; table < 5; ++table) {
    world.lines.clear();
    main().ComboTabla.userPick(table);
    EXPECT_EQ(world.take({"msgbox", "navigate"}), messages[static_cast<std::size_t>(table)]) << table;
  }
  EXPECT_EQ(atlas.archivotabla, "");
}

TEST_F(TableBrowser, EachPlaceholderCounts) {
  main().ComboTabla.userPick(1);
  const std::vector<std::pair<forms::EditableCombo*, std::string>> placeholders{{&main().ComboTipo, "Tipo"},
                                                                                {&main().ComboProvincia, "Provincia"},
                                                                                {&main().ComboAño, "Año"},
                                                                                {&main().ComboSexo, "Sexo"}};
  for (const auto& [combo, placeholder] : placeholders) {
    combo->addItem(placeholder);
    pick(*combo, placeholder);
    EXPECT_EQ(world.take({"msgbox"}), (Lines{kChooseAll})) << combo->name();
    combo->userPick(0);
    world.lines.clear();
  }
}

TEST_F(TableBrowser, TypingEmptiesABoxWhichThenCountsAsChosen) {
  main().ComboSexo.userEdit("Muj");
  EXPECT_EQ(main().ComboSexo.text(), "");
  world.lines.clear();
  main().ComboAño.userPick(1);
  EXPECT_EQ(world.take(), (Lines{kPages + "0\\Grandes grupos\\2000 - .html"}));
}

TEST_F(TableBrowser, WithNoTableChosenNothingHappens) {
  main().ComboTabla.setListIndex(-1);
  world.lines.clear();
  main().ComboAño.userPick(1);
  EXPECT_EQ(world.take(), Lines{});
}

TEST_F(TableBrowser, AFailureKeepsThePageRemembered) {
  const std::string before = atlas.archivotabla;
  world.failAt("navigate", 5);
  main().ComboAño.userPick(1);
  EXPECT_EQ(world.take({"msgbox"}), Lines{});
  EXPECT_EQ(atlas.archivotabla, before);
}

}  // namespace
}  // namespace atlas
