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
  expectPlace(f.PictureMapa, 412, 1415, 12300, 7700);
  expectPlace(f.Panel, 412, 1415, 12300, 7700);
  expectPlace(f.ProgressBar1, 412, 8860, 12300, 255);
  expectPlace(f.ShpDerecha, 13200, 645, 6000, 6080);
  EXPECT_DOUBLE_EQ(f.Image1.left(), 13400);
  expectPlace(f.TreeView1, 13300, 705, 5785, 5580);
  expectPlace(f.txtEspere, 13300, 705, 5785, 5580);
  EXPECT_DOUBLE_EQ(f.txtespere1.left(), 13300 + (5785 - 2200) / 2.0);
  EXPECT_DOUBLE_EQ(f.txtespere1.top(), 705 + (5580 - 360) / 2.0);
  EXPECT_DOUBLE_EQ(f.lblComando.left(), 13480);
  EXPECT_DOUBLE_EQ(f.lblComando.top(), 6345);
  EXPECT_DOUBLE_EQ(f.ImageEscudo.left() + f.ImageEscudo.width() / 2, 16200);
  expectPlace(f.FichaConsultasDatos, 14000, 6770, 4400, 2500);
  EXPECT_DOUBLE_EQ(f.ImageEscudo.top(), 10000) << "there is no room for it";
  expectPlace(f.Internet, 425, 1435, 12250, 7680);
}

// The smallest windows, with a frame of 40 pixels and without one, and two usual ones.
TEST_F(Layout, NothingOverlapsOnAnySize) {
  struct Size {
    double width, height, frame;
  };
  start();
  const FrmPrincipal& f = main();
  for (const Size& size : {Size{15000, 10200, 0}, Size{15240, 10800, 600}, Size{15360, 11520, 400},
                           Size{18855, 11520, 400}, Size{26490, 14955, 400}}) {
    SCOPED_TRACE(size.height);
    main().userResize(size.width, size.height);
    const auto bottom = [](const forms::Control& control) { return control.top() + control.height(); };
    const auto right = [](const forms::Control& control) { return control.left() + control.width(); };
    EXPECT_LE(right(f.LblSalir), f.Image1.left());
    EXPECT_LE(right(f.Ficha), f.ShpDerecha.left());
    EXPECT_LE(right(f.ShpDerecha), size.width);
    EXPECT_GE(f.TreeView1.height(), 5000);
    EXPECT_LE(bottom(f.TreeView1), f.lblComando.top());
    EXPECT_LE(bottom(f.lblComando), bottom(f.ShpDerecha));
    EXPECT_LE(bottom(f.ShpDerecha), f.FichaConsultasDatos.top());
    const double cards = std::max(bottom(f.Ficha), bottom(f.FichaConsultasDatos)) + 180;
    EXPECT_LE(cards, size.height - size.frame);
    EXPECT_LE(cards, f.ImageEscudo.top());
    const bool isSeenWhole = bottom(f.ImageEscudo) <= size.height - size.frame;
    EXPECT_TRUE(isSeenWhole || f.ImageEscudo.top() == size.height);
    EXPECT_TRUE(isSeenWhole || size.height < 10900);
  }
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
  expectPlace(f.PictureMapa, 412, 1415, 19050, 7855);
  expectPlace(f.Panel, 412, 1415, 19050, 7855);
  expectPlace(f.ProgressBar1, 412, 9015, 19050, 255);
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
