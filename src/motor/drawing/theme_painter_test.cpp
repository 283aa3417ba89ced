#include "motor/drawing/theme_painter.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "motor/drawing/map_image.h"
#include "motor/drawing/small_pictures.h"
#include "motor/drawing/themed_maps.h"

namespace motor {
namespace {

constexpr QRgb kRedPixel = 0xFFFF0000;
constexpr QRgb kGreenPixel = 0xFF00FF00;
constexpr QRgb kBluePixel = 0xFF0000FF;
constexpr QRgb kWhitePixel = 0xFFFFFFFF;
const Brush kBlueFill{2, small::kBlue, kTransparent};

QImage painted(const std::vector<Layer>& layers, double devicePixelRatio = 1) {
  return renderMap(small::map(layers), {100, 100}, devicePixelRatio);
}

// A hundred metres wide and high: its value is 0.5.
Layer wholeMap() { return small::layer({small::region({small::square(0, 0, 100, 100)}, kBlueFill)}, {"Ñorga"}); }

QImage shaded(const std::string& statement) {
  const Layer base = wholeMap();
  return painted({small::theme(base, statement), base});
}

TEST(ThemePainter, aThemeThatIsHiddenLeavesItsBase) {
  const Layer base = wholeMap();
  Layer theme = small::theme(base, "shade 1 with Valor ranges 0: 9 Brush (2,16711680)");
  EXPECT_EQ(painted({theme, base}).pixel(50, 50), kRedPixel);
  theme.display = Display::off;
  EXPECT_EQ(painted({theme, base}).pixel(50, 50), kBluePixel);
}

TEST(ThemePainter, aBaseShowsThroughAThemeThatLeavesGaps) {
  const std::string hatch = "shade 1 with Valor ranges 0: 9 Brush (3,16711680)";
  const QImage open = shaded(hatch);
  EXPECT_GT(small::countOf(open, kBluePixel), 100);
  EXPECT_GT(small::countOf(open, kRedPixel), 100);
  const QImage closed = shaded("shade 1 with Valor ranges 0: 9 Brush (3,16711680,65280)");
  EXPECT_EQ(small::countOf(closed, kBluePixel), 0);
  EXPECT_GT(small::countOf(closed, kGreenPixel), 100);
}

TEST(ThemePainter, nothingIsLeftOfAnObjectThatIsPaintedOver) {
  const Layer base = small::layer(
      {small::region({small::square(20, 20, 80, 80)}, small::kNoBrush, Pen{7, 2, small::kBlue})}, {"Ñorga"});
  const QImage full =
      painted({small::theme(base, "shade 1 with Valor ranges 0: 9 Brush (2,16711680) Pen (1,1,0)"), base});
  EXPECT_EQ(small::countOf(full, kBluePixel), 0);
  EXPECT_GT(small::countOf(full, kRedPixel), 3000);
  const QImage hatched =
      painted({small::theme(base, "shade 1 with Valor ranges 0: 9 Brush (3,16711680) Pen (1,1,0)"), base});
  EXPECT_GT(small::countOf(hatched, kBluePixel), 300);
}

TEST(ThemePainter, theUpperOfTwoThemesWins) {
  const Layer base = wholeMap();
  const Layer lower = small::theme(base, "shade 1 with Valor ranges 0: 9 Brush (2,16711680)");
  const Layer upper = small::theme(base, "shade 1 with Valor ranges 0: 9 Brush (2,65280)", 2);
  EXPECT_EQ(painted({upper, lower, base}).pixel(50, 50), kGreenPixel);
}

TEST(ThemePainter, appliesAColourToTheLayersOwnStyle) {
  Layer base = wholeMap();
  base.display = Display::global;
  base.brush = Brush{3, small::kGreen, small::kBlue};
  const QImage image =
      painted({small::theme(base, "shade 1 with Valor ranges apply color 0: 9 Brush (2,16711680)"), base});
  EXPECT_GT(small::countOf(image, kRedPixel), 100);
  EXPECT_GT(small::countOf(image, kBluePixel), 100);
  EXPECT_EQ(small::countOf(image, kGreenPixel), 0);
}

// A symbol of 30 points is 40 pixels wide; its disc fills nine tenths of that.
TEST(ThemePainter, aSymbolsSizeTellsTheValue) {
  const QImage image = shaded("shade 1 with Valor graduated 0:0 0.5:30 Symbol (34,16711680,30) vary size by \"SQRT\"");
  EXPECT_EQ(image.pixel(50, 50), kRedPixel);
  EXPECT_EQ(image.pixel(50, 50 - 15), kRedPixel);
  EXPECT_EQ(image.pixel(50, 50 - 22), kBluePixel);
  const QImage quarter = shaded("shade 1 with Valor graduated 0:0 2:30 Symbol (34,16711680,30) vary size by \"SQRT\"");
  EXPECT_EQ(quarter.pixel(50, 50 - 7), kRedPixel);
  EXPECT_EQ(quarter.pixel(50, 50 - 12), kBluePixel);
}

TEST(ThemePainter, aSymbolHasALightEdge) {
  const QImage image = shaded("shade 1 with Valor graduated 0:0 0.5:30 Symbol (34,16711680,30)");
  int lightest = 0;
  for (int y = 25; y < 40; ++y) lightest = std::max(lightest, qGreen(image.pixel(50, y)));
  EXPECT_GT(lightest, 120) << "neither red nor blue has any green";
}

// Two squares that share their middle: the small symbol lies on the large one in either order of the rows.
TEST(ThemePainter, smallSymbolsStayOnTopOfLargeOnes) {
  const ObjectPtr first = small::region({small::square(0, 0, 100, 100)}, kBlueFill);
  const ObjectPtr second = small::region({small::square(10, 10, 90, 90)}, kBlueFill);
  const Layer base = small::layer({first, second}, {"", ""});
  for (const std::string value : {"Valor", "2-Valor"}) {
    const QImage image = painted({small::theme(base, "shade 1 with " + value +
                                                         " graduated 0:0 1.5:40 Symbol "
                                                         "(34,16711680,30)"),
                                  base});
    int edges = 0;
    for (int y = 30; y < 50; ++y) edges += qGreen(image.pixel(50, y)) > 120;
    EXPECT_GE(edges, 1) << "the small symbol's edge shows inside the large one: " << value;
  }
}

TEST(ThemePainter, fineScreensGetFineSymbols) {
  const Layer base = wholeMap();
  const Layer theme = small::theme(base, "shade 1 with Valor graduated 0:0 0.5:30 Symbol (34,16711680,30)");
  const int once = small::countOf(painted({theme, base}), kRedPixel);
  const int twice = small::countOf(painted({theme, base}, 2), kRedPixel);
  EXPECT_NEAR(twice, 4 * once, once / 2.0);
}

TEST(ThemePainter, aPieTurnsClockwiseFromTheLeft) {
  const std::string words =
      "with 1, 1, 2 pie max size 80 units \"pt\" border pen (1,1,0) style brush (2,16711680), brush (2,65280), brush "
      "(2,0)";
  const QImage image = shaded("shade 1 " + words);
  EXPECT_EQ(image.pixel(35, 35), kRedPixel);    // top left
  EXPECT_EQ(image.pixel(65, 35), kGreenPixel);  // top right
  EXPECT_EQ(image.pixel(50, 70), 0xFF000000);
  const QImage counter = shaded(
      "shade 1 with 1, 1, 2 pie counter max size 80 units \"pt\" border pen (1,1,0) style "
      "brush (2,16711680), brush (2,65280), brush (2,0)");
  EXPECT_EQ(counter.pixel(35, 65), kRedPixel);
  EXPECT_EQ(counter.pixel(65, 65), kGreenPixel);
  const QImage half = shaded(
      "shade 1 with 1, 1 half pie max size 80 units \"pt\" border pen (1,1,0) style brush "
      "(2,16711680), brush (2,65280)");
  EXPECT_EQ(half.pixel(35, 35), kRedPixel);
  EXPECT_EQ(half.pixel(65, 35), kGreenPixel);
  EXPECT_EQ(half.pixel(50, 70), kBluePixel);
}

TEST(ThemePainter, barsStandSideBySideOrOnEachOther) {
  const std::string look =
      " max size 60 units \"pt\" at value 2 by \"CONST\" border pen (1,1,0) width 15 units \"pt\" "
      "style brush (2,16711680), brush (2,65280)";
  // 80 pixels high, two bars of 20 pixels: the box is 40 wide around the middle.
  const QImage bars = shaded("shade 1 with 2, 1 bar" + look);
  EXPECT_EQ(bars.pixel(40, 15), kRedPixel);
  EXPECT_EQ(bars.pixel(60, 15), kBluePixel);
  EXPECT_EQ(bars.pixel(60, 80), kGreenPixel);
  const QImage stacked = shaded("shade 1 with 1, 1 bar stacked" + look);
  EXPECT_EQ(stacked.pixel(50, 80), kRedPixel);
  EXPECT_EQ(stacked.pixel(50, 20), kGreenPixel);
  EXPECT_EQ(stacked.pixel(35, 50), kBluePixel);
}

TEST(ThemePainter, dotsStayInsideTheirRegion) {
  const Layer base = small::layer({small::region({small::square(0, 0, 50, 100)}, small::kNoBrush)}, {""});
  const QImage image = painted({small::theme(base, "shade 1 with 100 density 1 square width 2 color 16711680"), base});
  EXPECT_GT(small::countOf(image, kRedPixel), 80);
  EXPECT_EQ(small::countOf(image.copy(55, 0, 45, 100), kWhitePixel), 45 * 100);
}

TEST(ThemePainter, labelsStandBelowTheSigns) {
  Layer base = wholeMap();
  base.label.automatic = true;
  base.table = small::layer({small::region({small::square(0, 0, 100, 100)}, small::kNoBrush)}, {"Ñorga"}).table;
  const Layer theme = small::theme(base, "shade 1 with Valor graduated 0:0 0.5:30 Symbol (34,16711680,30)");
  const QImage image = painted({theme, base});
  const auto inkIn = [&](QRect rect) {
    int ink = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y)
      for (int x = rect.left(); x <= rect.right(); ++x) ink += qGray(image.pixel(x, y)) < 60;
    return ink;
  };
  EXPECT_EQ(inkIn({20, 32, 60, 36}), 0);
  EXPECT_GT(inkIn({20, 69, 60, 20}), 10);
}

TEST(ThemePainter, aTableWithoutRowsDrawsNothing) {
  const Layer base = small::squares(0, kBlueFill);
  for (const char* statement : {"shade 1 with Valor ranges 0: 9 Brush (2,1)", "shade 1 with Valor values 1 Brush (2,1)",
                                "shade 1 with Valor graduated 0:0 9:9 Symbol (34,1,9)", "shade 1 with Valor, 1 pie",
                                "shade 1 with Valor, 1 bar", "shade 1 with Valor density 1"}) {
    EXPECT_EQ(small::countOf(painted({small::theme(base, statement), base}), kWhitePixel), 100 * 100) << statement;
  }
}

}  // namespace
}  // namespace motor
