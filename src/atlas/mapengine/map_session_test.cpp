#include "atlas/callbacks/mi_callback.h"
#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;

const std::string kMap = "C:\\Estudio\\m.wor";

class MapSession : public testing::Program {};

Lines openingUpTo(const std::string& tabSteps) {
  Lines lines{
      "dir C:\\Estudio\\m.wor",
      "set txtEspere.Visible True",
      "set txtespere1.Visible True",
      "set ProgressBar1.Visible True",
      "set ProgressBar1.Value 10",
      "set ProgressBar1.Value 20",
      "clear TreeView1",
      "zorder 100 topmost 19",
      "set ProgressBar1.Value 30",
      "create MapInfo.runtime",
      "release #1",
      "set ProgressBar1.Value 40",
      "find MapInfo none",
      "close 0",
      "set ProgressBar1.Value 50",
      "zorder 100 notopmost 19",
      "set ProgressBar1.Value 60",
      "do Set application Window 200",
      "do run application \"C:\\Estudio\\m.wor\"",
      "do Set Window Ruler Parent 100",
      "do Set Window Legend Parent 100",
      "set ProgressBar1.Value 70",
      ("do Create Menu \"MapperShortcut\" ID 17 as \"&Ver Toda la Capa...\" calling 807,\"&Borrar Etiquetas...\" "
       "calling 814,\"&Quitar Selección...\" calling OLE \"borraseleccion\""),
      "eval WindowID(1) = 77",
      "eval WindowInfo(77, 12) = 555",
      "parent 555 200",
      "set ProgressBar1.Value 80",
      "do set window 77Max",
      tabSteps,
      "callback-set MICallback",
      "set ProgressBar1.Value 90",
      "do Create Buttonpad \"Callback\" As Toolbutton ID 2001 DrawMode 34 Cursor 138 Calling OLE \"Info\"",
      "do Alter buttonpad \"Callback\" add Toolbutton ID 2002 DrawMode 34 Cursor 138 Calling OLE \"InfoEstadisticas\"",
      "do Alter buttonpad \"Callback\" add Toolbutton ID 2003 DrawMode 34 Cursor 138 Calling OLE \"InfoDatos\"",
  };
  return lines;
}

const Lines kFinished{"set ProgressBar1.Value 100", "set txtEspere.Visible False", "set txtespere1.Visible False",
                      "set ProgressBar1.Visible False"};

TEST_F(MapSession, OpensAWorkspaceStepByStep) {
  start();
  atlas.AbrirMapa(kMap);
  Lines expected = openingUpTo("find Seleccionar mapa temático none");
  expected.insert(expected.end(),
                  {"do run menu command ID 2002", "set lblComando.Caption \"Comando actual: Información\""});
  expected.insert(expected.end(), kFinished.begin(), kFinished.end());
  EXPECT_EQ(world.take(), expected);
  EXPECT_NE(atlas.motormapa, nullptr);
  EXPECT_EQ(world.callback, atlas.callbackmapa);
}

TEST_F(MapSession, TablesTabChoosesNoTool) {
  atlas.motormapa = world.create("MapInfo.runtime");
  world.take();
  atlas.AbrirMapa(kMap);
  Lines expected = openingUpTo("find Seleccionar mapa temático none");
  expected.insert(expected.end(), kFinished.begin(), kFinished.end());
  EXPECT_EQ(world.take(), expected);
}

TEST_F(MapSession, ThematicTabShowsSelectorAndLegendAndKeepsThemShown) {
  startOnTab(1);
  for (int time = 1; time <= 2; ++time) {
    atlas.AbrirMapa(kMap);
    const Lines lines = world.take({"load", "show", "zorder 300", "do open", "do set window legend", "do run menu"});
    EXPECT_EQ(lines, (Lines{"show frmTematicos", "zorder 300 topmost 19", "do open window legend",
                            "do set window legend position (6,5) units \"in\" ", "do run menu command ID 2001"}));
  }
}

TEST_F(MapSession, DataTabRunsTheDataToolAndClosesTheSelector) {
  startOnTab(2);
  selector().show();
  world.take();
  atlas.AbrirMapa(kMap);
  EXPECT_EQ(world.take({"find Sel", "hide", "unload", "do run menu"}),
            (Lines{"find Seleccionar mapa temático found", "hide frmTematicos", "unload frmTematicos",
                   "do run menu command ID 2003"}));
}

TEST_F(MapSession, ClosesTheEnginesOwnFrame) {
  start();
  world.titles.insert("MapInfo");
  atlas.AbrirMapa(kMap);
  EXPECT_EQ(world.take({"find MapInfo", "close"}), (Lines{"find MapInfo found", "close 7"}));
}

TEST_F(MapSession, AMissingFileTouchesNothing) {
  start();
  const auto before = atlas.motormapa;
  world.missingFiles.insert(kMap);
  atlas.AbrirMapa(kMap);
  EXPECT_EQ(world.take(),
            (Lines{"dir C:\\Estudio\\m.wor",
                   "msgbox 64 [Mortalidad en Veldoria] No existe ningún mapa para los parámetros seleccionados"}));
  EXPECT_EQ(atlas.motormapa, before);
}

TEST_F(MapSession, ARejectedStatementEmptiesTheEngineAndCleansUp) {
  start();
  world.failAt("do run application", failures::kEngineRejected);
  atlas.AbrirMapa(kMap);
  const Lines lines = world.take();
  const auto from = std::ranges::find(lines, "do run application \"C:\\Estudio\\m.wor\"");
  EXPECT_EQ(Lines(from + 1, lines.end()),
            (Lines{"msgbox 48 [Mortalidad en Veldoria] No se pudo abrir el entorno de trabajo o su ruta es incorrecta.",
                   "release #2", "zorder 100 notopmost 83", "set txtEspere.Visible False",
                   "set txtespere1.Visible False", "set ProgressBar1.Visible False"}));
  EXPECT_EQ(atlas.motormapa, nullptr);
  EXPECT_EQ(main().ProgressBar1.value(), 60);
}

TEST_F(MapSession, AnEngineServiceWithoutObjectEndsTheProgram) {
  start();
  world.engineServiceAnswersNull = true;
  EXPECT_THROW(atlas.AbrirMapa(kMap), platform::ProgramEnd);
  EXPECT_EQ(
      world.take({"msgbox", "end", "set txtEspere.Visible False", "unload"}),
      (Lines{("msgbox 48 [Mortalidad en Veldoria] MapInfo Proviewer no está instalado correctamente en el equipo, "
              "reinstálelo de nuevo."),
             "end"}));
  EXPECT_EQ(atlas.motormapa, nullptr);
}

TEST_F(MapSession, AnyOtherFailureIsShownWithItsNumberAndKeepsTheEngine) {
  start();
  const auto before = atlas.motormapa;
  world.failAt("create", failures::kCannotCreateObject, "El componente no puede crear el objeto");
  atlas.AbrirMapa(kMap);
  EXPECT_EQ(
      world.take({"msgbox", "zorder", "release"}),
      (Lines{"zorder 100 topmost 19",
             ("msgbox 0 [Mortalidad en Veldoria 1999-2002] Error al cargar el mapa : El componente no puede crear "
              "el objeto 429"),
             "zorder 100 notopmost 83"}));
  EXPECT_EQ(atlas.motormapa, before);
}

TEST_F(MapSession, AFailureOfNoPortIsShownWithoutANumber) {
  start();
  world.breakAt("do run application", "memoria agotada");
  atlas.AbrirMapa(kMap);
  EXPECT_EQ(world.take({"msgbox", "zorder 100 notopmost 83", "set ProgressBar1.Visible False"}),
            (Lines{"msgbox 0 [Mortalidad en Veldoria 1999-2002] Error al cargar el mapa : memoria agotada 0",
                   "zorder 100 notopmost 83", "set ProgressBar1.Visible False"}));
  EXPECT_NE(atlas.motormapa, nullptr);
}

TEST_F(MapSession, WithoutEngineEveryOperationFailsWith91) {
  const auto numberOf = [](auto operation) {
    try {
      operation();
    } catch (const Failure& failure) {
      return failure.number();
    }
    return 0;
  };
  EXPECT_EQ(numberOf([&] { atlas.Do("x"); }), 91);
  EXPECT_EQ(numberOf([&] { static_cast<void>(atlas.Eval("x")); }), 91);
  EXPECT_EQ(numberOf([&] { atlas.SetCallback(nullptr); }), 91);
}

}  // namespace
}  // namespace atlas
