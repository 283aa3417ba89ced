#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;

class Layout : public testing::Program {
 protected:
  void expectPlace(const forms::Control& control, double left, double top, double width, double height) {
    EXPECT_DOUBLE_EQ(control.left(), left) << control.name();
    EXPECT_DOUBLE_EQ(control.top(), top) << control.name();
    EXPECT_DOUBLE_EQ(control.width(), width) << control.name();
    EXPECT_DOUBLE_EQ(control.height(), height) << control.name();
  }
};

TEST_F(Layout, MapTabsAt20000By10000) {
  start();
  main().userResize(20000, 10000);
  const FrmPrincipal& f = main();
  expectPlace(f.ShpFondo, 0, 0, 13200, 10000);
  expectPlace(f.Ficha, 150, 645, 12800, 8500);
  expectPlace(f.FichaAños, 10150, 645, 2800, 390);
  expectPlace(f.PictureMapa, 400, 1415, 12300, 7700);
  expectPlace(f.Panel, 400, 1415, 12300, 7700);
  expectPlace(f.ProgressBar1, 400, 8860, 12300, 255);
  expectPlace(f.ShpDerecha, 13200, 645, 6000, 6080);
  EXPECT_DOUBLE_EQ(f.Image1.left(), 13400);
  expectPlace(f.TreeView1, 13300, 705, 5785, 5580);
  expectPlace(f.txtEspere, 13300, 705, 5785, 5580);
  EXPECT_DOUBLE_EQ(f.txtespere1.left(), 13300 + (5785 - 2200) / 2.0);
  EXPECT_DOUBLE_EQ(f.txtespere1.top(), 705 + (5580 - 360) / 2.0);
  EXPECT_DOUBLE_EQ(f.lblComando.left(), 13480);
  EXPECT_DOUBLE_EQ(f.lblComando.top(), 6345);
  EXPECT_DOUBLE_EQ(f.ImageEscudo.left() + f.ImageEscudo.width() / 2, 16200);
  EXPECT_DOUBLE_EQ(f.ImageEscudo.top(), 9375);
  expectPlace(f.FichaConsultasDatos, 14000, 6545, 4400, 2600);
  expectPlace(f.Internet, 425, 1435, 12250, 7680);
}

TEST_F(Layout, TellsTheEngineTheMapsSizeInItsUnits) {
  start();
  main().userResize(20000, 10000);
  // 12300 / 1063.46894701793 - 3 and 7700 / 1063.46894701793 - 3
  EXPECT_EQ(world.take({"do", "eval"}),
            (Lines{"eval windowid(1) = 77", "do set window 77 width 8.565923043160208 height 4.24045588880761",
                   "eval WindowID(1) = 77", "do set window 77Max"}));
}

TEST_F(Layout, TablesTabFillsTheWindowAndSendsNothing) {
  startOnTab(0);
  main().userResize(20000, 10000);
  const FrmPrincipal& f = main();
  expectPlace(f.ShpFondo, 0, 0, 20000, 10000);
  expectPlace(f.Ficha, 150, 645, 19550, 8655);
  expectPlace(f.PictureMapa, 400, 1415, 19050, 7855);
  expectPlace(f.Panel, 400, 1415, 19050, 7855);
  expectPlace(f.ProgressBar1, 400, 9015, 19050, 255);
  expectPlace(f.ShpDerecha, 13200, 645, 6000, 6080);
  expectPlace(f.TreeView1, 13300, 705, 5785, 5580);
  expectPlace(f.Internet, 425, 1435, 19000, 7835);
  EXPECT_EQ(world.take({"do", "eval", "find"}), (Lines{"find Seleccionar mapa temático none"}));
}

TEST_F(Layout, TablesTabClosesTheSelector) {
  startOnTab(0);
  selector().show();
  world.take();
  main().userResize(20000, 10000);
  EXPECT_EQ(world.take({"find", "hide", "unload"}),
            (Lines{"find Seleccionar mapa temático found", "hide frmTematicos", "unload frmTematicos"}));
}

TEST_F(Layout, MinimisingLeavesEverythingRestoringLaysOutAgain) {
  start();
  main().userMinimize();
  EXPECT_EQ(world.take(), Lines{});
  main().userRestore();
  EXPECT_EQ(world.take({"do"}).size(), 2U);
}

TEST_F(Layout, AFailureEndsSilently) {
  start();
  world.failAt("do set window 77 width", failures::kEngineRejected);
  main().userResize(20000, 10000);
  EXPECT_EQ(world.take({"msgbox", "set Internet", "do set window 77Max"}), Lines{});
}

}  // namespace
}  // namespace atlas
