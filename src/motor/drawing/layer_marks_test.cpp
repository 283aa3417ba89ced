#include "motor/drawing/layer_marks.h"

#include <gtest/gtest.h>

#include "motor/drawing/map_image.h"
#include "motor/drawing/small_maps.h"

namespace motor {
namespace {

const Pen kThin{1, 2, small::kRed};

QImage picture(const Layer& layer) { return renderMap(small::map({layer}), {100, 100}, 1); }

// The row of pixels of a height above the lower edge.
bool isDark(const QImage& image, int x, int y) { return image.pixelColor(x, 100 - y).lightness() < 80; }
bool isRed(const QImage& image, int x, int y) {
  const QColor colour = image.pixelColor(x, 100 - y);
  return colour.red() > 180 && colour.green() < 100;
}

TEST(LayerMarksTest, arrowsPointAlongTheLine) {
  Layer layer = small::layer({small::line({{10, 50}, {90, 50}}, kThin)});
  EXPECT_FALSE(isRed(picture(layer), 46, 52));
  layer.arrows = true;
  const QImage forth = picture(layer);
  EXPECT_TRUE(isRed(forth, 46, 52));
  EXPECT_FALSE(isRed(forth, 54, 52));
  Layer back = small::layer({small::line({{90, 50}, {10, 50}}, kThin)});
  back.arrows = true;
  EXPECT_TRUE(isRed(picture(back), 54, 52));
  EXPECT_FALSE(isRed(picture(back), 46, 52));
}

TEST(LayerMarksTest, nodesAndCentroidsAreMarked) {
  Layer layer = small::layer({small::region({small::square(20, 20, 80, 80)}, small::kNoBrush, small::kNoPen)});
  EXPECT_FALSE(isDark(picture(layer), 20, 20));
  EXPECT_FALSE(isDark(picture(layer), 50, 50));
  layer.nodes = true;
  EXPECT_TRUE(isDark(picture(layer), 20, 20));
  EXPECT_TRUE(isDark(picture(layer), 79, 80));
  EXPECT_FALSE(isDark(picture(layer), 50, 50));
  layer.centroids = true;
  EXPECT_TRUE(isDark(picture(layer), 50, 50));
}

TEST(CalloutsTest, leadFromAMovedLabelToItsObject) {
  Layer layer = small::layer({small::point({80, 50}, Symbol())}, {"a"});
  layer.label.expression = "Nombre";
  EditedLabel moved;
  moved.row = 1;
  moved.anchor = Point{20, 50};
  moved.position = 0;
  layer.label.edited = {moved};
  layer.label.pen = {2, 2, small::kRed};
  EXPECT_FALSE(isRed(picture(layer), 50, 50));
  layer.label.line = LabelLine::simple;
  const auto redIn = [](const QImage& image, int fromX, int toX) {
    int count = 0;
    for (int x = fromX; x < toX; ++x) {
      for (int y = 20; y < 80; ++y) count += isRed(image, x, y) ? 1 : 0;
    }
    return count;
  };
  const QImage simple = picture(layer);
  EXPECT_GT(redIn(simple, 45, 55), 10);
  layer.label.line = LabelLine::arrow;
  EXPECT_GT(redIn(picture(layer), 60, 90), redIn(simple, 60, 90));
  layer.label.edited[0].line = LabelLine::none;
  EXPECT_EQ(redIn(picture(layer), 0, 100), 0);
  layer.label.edited[0].line = LabelLine::simple;
  layer.label.edited[0].callout = Point{20, 90};
  EXPECT_EQ(redIn(picture(layer), 60, 90), 0);
}

}  // namespace
}  // namespace motor
