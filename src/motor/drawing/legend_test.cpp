#include "motor/drawing/legend.h"

#include <gtest/gtest.h>

#include "motor/drawing/small_pictures.h"
#include "motor/drawing/themed_maps.h"

namespace motor {
namespace {

constexpr QRgb kRedPixel = 0xFFFF0000;
constexpr QRgb kGreenPixel = 0xFF00FF00;

QSize sizeOf(const Map& map) {
  Themes themes;
  return Legend(legendSections(map, themes)).size();
}

Map themedMap(const std::string& legend = "") {
  const Layer base = small::squares(3, Brush{2, small::kBlue, kTransparent});
  Layer theme = small::theme(base, "shade 1 with Valor ranges 0: 1 Brush (2,16711680), 1: 3 Brush (2,65280)");
  if (!legend.empty()) theme.legend = small::legend("set legend layer 1 " + legend);
  return small::map({theme, base});
}

// Whether a column of pixels is white.
bool isBlank(const QImage& image, int x) {
  for (int y = 0; y < image.height(); ++y) {
    if (image.pixel(x, y) != 0xFFFFFFFF) return false;
  }
  return true;
}

TEST(Legend, framesHaveTheirBorders) {
  const Layer base = small::squares(1, Brush{2, small::kRed, kTransparent});
  Map map = small::map({base});
  MapLegendFrame frame;
  frame.layer = base.name;
  map.legendFrames = {frame, frame};
  const QImage plain = renderLegend(map, 1);
  map.legendFrames[0].border = Pen{1, 2, 0xFF00};
  map.legendFrames[1].border = Pen{0, 1, 0xFF00};
  const QImage bordered = renderLegend(map, 1);
  EXPECT_EQ(bordered.size(), plain.size());
  int top = -1;
  int bottom = -1;
  for (int y = 0; y < bordered.height(); ++y) {
    if (bordered.pixel(bordered.width() / 2, y) != kGreenPixel) continue;
    if (top < 0) top = y;
    bottom = y;
  }
  EXPECT_GE(top, 0);
  EXPECT_GT(bottom, top + 10);
  EXPECT_LT(bottom, bordered.height() / 2) << "the other has a pen that draws nothing";
  const int middle = (top + bottom) / 2;
  const auto isOnEdge = [&](int x) { return bordered.pixel(x, middle) == kGreenPixel; };
  EXPECT_TRUE(isOnEdge(6));
  EXPECT_TRUE(isOnEdge(bordered.width() - 8) || isOnEdge(bordered.width() - 7));
}

TEST(Legend, listsTheLayersOfAMapWithoutThemes) {
  const Layer shown = small::squares(1, Brush{2, small::kRed, kTransparent});
  Layer hidden = shown;
  hidden.display = Display::off;
  const QSize one = sizeOf(small::map({shown}));
  EXPECT_EQ(sizeOf(small::map({shown, hidden})), one);
  EXPECT_GT(sizeOf(small::map({shown, shown})).height(), one.height());
  const QImage image = renderLegend(small::map({shown}), 1);
  EXPECT_EQ(image.size(), one);
  EXPECT_EQ(image.pixel(20, one.height() / 2), kRedPixel);
}

TEST(Legend, showsTheHighestClassOnTop) {
  const QImage image = renderLegend(themedMap(), 1);
  int green = -1;
  int red = -1;
  for (int y = 0; y < image.height(); ++y) {
    if (image.pixel(20, y) == kGreenPixel && green < 0) green = y;
    if (image.pixel(20, y) == kRedPixel && red < 0) red = y;
  }
  ASSERT_GT(green, 0);
  EXPECT_GT(red, green + 14) << "swatches do not touch";
  const QImage ascending = renderLegend(themedMap("ascending on"), 1);
  EXPECT_EQ(ascending.pixel(20, green + 3), kRedPixel);
}

TEST(Legend, isAsWideAsItsLongestText) {
  const QImage image = renderLegend(themedMap("title \"Un título que no cabe en ciento cuarenta puntos\""), 1);
  EXPECT_GT(image.width(), 200);
  for (int x = 1; x <= 10; ++x) EXPECT_TRUE(isBlank(image, image.width() - x)) << "the title touches the margin";
}

TEST(Legend, breaksVeryLongTextsAndCutsNone) {
  const std::string words = "Trastornos mentales orgánicos senil y presenil de ambos sexos en la región por zonas";
  const QSize one = sizeOf(themedMap("title \"Título\" subtitle auto"));
  const QSize broken = sizeOf(themedMap("title \"" + words + " " + words + "\" subtitle auto"));
  EXPECT_GT(broken.height(), one.height() + 10);
  EXPECT_LT(broken.width(), 400);
  const std::string oneWord(80, 'm');
  const QImage image = renderLegend(themedMap("title \"" + oneWord + "\""), 1);
  EXPECT_GT(image.width(), 500);
  EXPECT_TRUE(isBlank(image, image.width() - 5));
}

TEST(Legend, leavesRoomForTheCounts) {
  const std::string row =
      " ranges auto display off, auto display on, \"una clase con un nombre bastante largo\" display on";
  const QSize without = sizeOf(themedMap("count off" + row));
  const QSize with = sizeOf(themedMap("count on" + row));
  EXPECT_GT(with.width(), without.width() + 10);
  EXPECT_EQ(with.height(), without.height());
}

TEST(Legend, isFineOnFineScreens) {
  const QImage once = renderLegend(themedMap(), 1);
  const QImage twice = renderLegend(themedMap(), 2);
  EXPECT_EQ(twice.size(), once.size() * 2);
  EXPECT_NEAR(small::countOf(twice, kRedPixel), 4 * small::countOf(once, kRedPixel), 200);
}

TEST(Legend, symbolsHaveTheirOwnSize) {
  const Layer base = small::squares(3, Brush{2, small::kBlue, kTransparent});
  const Layer theme = small::theme(base, "shade 1 with 2*Valor graduated 0:0 100:36 Symbol (34,16711680,36)");
  const QImage image = renderLegend(small::map({theme, base}), 1);
  int widest = 0;
  for (int y = 0; y < image.height(); ++y) {
    widest = std::max(widest, small::countOf(image.copy(0, y, image.width(), 1), kRedPixel));
  }
  EXPECT_NEAR(widest, 36 * 96 / 72 * 0.9, 4);
}

}  // namespace
}  // namespace motor
