#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;

class Start : public testing::Program {};

TEST_F(Start, MainShowsTheSplashOnly) {
  atlas.Main();
  EXPECT_EQ(world.take(), (Lines{"load frmInicio", "set frmInicio.Visible True", "show frmInicio"}));
  EXPECT_EQ(atlas.frmInicio().caption(), "Estudio de Mortalidad en Veldoria");
  EXPECT_EQ(atlas.frmInicio().Timer1.interval, 2500);
  EXPECT_EQ(atlas.forms().size(), 1U);
}

TEST_F(Start, TimerLoadsAndShowsTheMainWindowBeforeTheSplashGoes) {
  atlas.Main();
  world.take();
  atlas.frmInicio().Timer1.elapse();
  EXPECT_EQ(
      world.take({"load", "show", "unload", "set Timer1", "create", "regopen"}),
      (Lines{"load frmPrincipal", "regopen Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Mapinfor.exe 1",
             "regopen Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\ACRORD32.exe 1",
             "create MapInfo.runtime", "show frmPrincipal", "set Timer1.Enabled False", "unload frmInicio"}));
  EXPECT_EQ(main().Ficha.tab(), 3);
}

TEST_F(Start, DoubleClickDoesTheSameAtOnceAndTheTimerNeverFires) {
  atlas.Main();
  world.take();
  atlas.frmInicio().userDoubleClick();
  EXPECT_EQ(world.take({"load", "show", "unload", "set Timer1"}),
            (Lines{"load frmPrincipal", "show frmPrincipal", "unload frmInicio"}));
  atlas.frmInicio().Timer1.elapse();
  EXPECT_EQ(world.take(), Lines{});
}

TEST_F(Start, ADoubleClickOnThePictureIsOneOnTheSplash) {
  atlas.Main();
  world.take();
  atlas.frmInicio().Image1.DblClick.raise();
  EXPECT_EQ(world.take({"load", "show", "unload", "set Timer1"}),
            (Lines{"load frmPrincipal", "show frmPrincipal", "unload frmInicio"}));
}

TEST_F(Start, LoadTurnsToTheStatisticsTabWhichOpensItsMap) {
  atlas.Main();
  atlas.frmInicio().Timer1.elapse();
  EXPECT_EQ(world.take({"set Ficha.Tab", "do run application"}),
            (Lines{"set Ficha.Tab 3", "do run application \"C:\\Estudio\\Tablas\\Estadisticas\\Estadisticas.wor\""}));
}

TEST_F(Start, LoadOnTheStatisticsTabOpensItsMapWithoutTurningToIt) {
  start();
  main().Load.raise();
  EXPECT_EQ(world.take({"set Ficha", "do set map", "do run application"}),
            (Lines{"do run application \"C:\\Estudio\\Tablas\\Estadisticas\\Estadisticas.wor\""}));
}

TEST_F(Start, AFailureInTheSplashEndsSilently) {
  atlas.Main();
  world.failAt("show frmPrincipal", 7);
  atlas.frmInicio().Timer1.elapse();
  EXPECT_EQ(world.take({"msgbox", "unload"}), Lines{});
}

class Unload : public testing::Program {};

TEST_F(Unload, StatisticsTabEndsTheEngine) {
  start();
  main().userClose();
  EXPECT_EQ(world.take(),
            (Lines{"do set map layer 1 label default", "do end mapinfo", "release #1", "unload frmPrincipal"}));
  EXPECT_EQ(atlas.motormapa, nullptr);
}

TEST_F(Unload, DataTabClearsThreeLayers) {
  startOnTab(2);
  main().userClose();
  EXPECT_EQ(world.take(), (Lines{"do set map layer 1 label default layer 2 label default layer 3 label default",
                                 "do end mapinfo", "release #2", "unload frmPrincipal"}));
}

TEST_F(Unload, ThematicTabClosesTheLegendAndTheSelector) {
  startOnTab(1);
  main().userClose();
  EXPECT_EQ(world.take(), (Lines{"do Close window legend", "do set map layer 2 label default", "do end mapinfo",
                                 "release #2", "unload frmTematicos", "unload frmPrincipal"}));
}

TEST_F(Unload, TablesTabSendsNothing) {
  startOnTab(0);
  main().LblSalir.userClick();
  EXPECT_EQ(world.take(), (Lines{"unload frmPrincipal"}));
}

TEST_F(Unload, TablesTabLeavesAnEngineThatIsStillThereAlone) {
  start();
  world.failAt("do set map layer 1", failures::kEngineRejected);
  main().Ficha.userPick(0);
  world.take();
  main().userClose();
  EXPECT_EQ(world.take(), (Lines{"unload frmPrincipal"}));
  EXPECT_NE(atlas.motormapa, nullptr);
}

TEST_F(Unload, AFailureSkipsTheRestOfTheHandler) {
  startOnTab(1);
  world.failAt("do set map layer 2", failures::kEngineRejected);
  main().userClose();
  EXPECT_EQ(world.take(), (Lines{"do Close window legend", "do set map layer 2 label default", "unload frmPrincipal"}));
  EXPECT_NE(atlas.motormapa, nullptr);
}

class PopUps : public testing::Program {
 protected:
  void SetUp() override { start(); }
};

TEST_F(PopUps, LabelsOpenTheirFrames) {
  main().LblEstadisticas.userMouseMove();
  main().LblInformacion.userMouseMove();
  EXPECT_EQ(world.take(), (Lines{"set Submenu.Visible True", "set SubMenu2.Visible True"}));
}

TEST_F(PopUps, PresentationAndToolbarsHideBothInAnyCase) {
  const Lines both{"set Submenu.Visible False", "set SubMenu2.Visible False"};
  main().LblPresentación.userMouseMove();
  EXPECT_EQ(world.take(), both);
  for (const forms::ImageArray* toolbar : {&main().Image2, &main().Image3, &main().Image4}) {
    toolbar->at(5).userMouseMove();
    EXPECT_EQ(world.take(), both);
  }
}

TEST_F(PopUps, ElsewhereOnlyWhatIsVisibleIsHidden) {
  for (forms::Control* control :
       std::initializer_list<forms::Control*>{&main(), &main().LblSalir, &main().Ficha, &main().FichaAños}) {
    control->userMouseMove();
    EXPECT_EQ(world.take(), Lines{});
    main().LblInformacion.userMouseMove();
    main().LblEstadisticas.userMouseMove();
    world.take();
    control->userMouseMove();
    EXPECT_EQ(world.take(), (Lines{"set Submenu.Visible False", "set SubMenu2.Visible False"}));
  }
}

}  // namespace
}  // namespace atlas
