#include "motor/drawing/legend.h"

#include <gtest/gtest.h>

#include "motor/drawing/small_maps.h"

namespace motor {
namespace {

Layer oneRow() {
  return small::layer({small::region({small::square(0, 0, 10, 10)}, Brush{2, small::kRed, kTransparent})}, {"Ñorga"});
}

TEST(Legend, ListsTheLayersThatAreDisplayed) {
  Layer shown = oneRow();
  Layer hidden = oneRow();
  hidden.display = Display::off;
  const QSize one = legendSize(small::map({shown}));
  EXPECT_EQ(legendSize(small::map({shown, hidden})), one);
  EXPECT_GT(legendSize(small::map({shown, shown})).height(), one.height());
  const QImage image = renderLegend(small::map({shown}), 1);
  EXPECT_EQ(image.size(), one);
  EXPECT_EQ(image.pixel(20, one.height() / 2), 0xFFFF0000);
}

TEST(Legend, IsAsWideAsItsLongestName) {
  Layer layer = oneRow();
  layer.name = "Una capa con un nombre muy largo que no cabe en ciento veinte";
  const QImage image = renderLegend(small::map({layer}), 1);
  for (int y = 0; y < image.height(); ++y) {
    EXPECT_EQ(image.pixel(image.width() - 3, y), 0xFFFFFFFF) << "the name touches the margin";
  }
  EXPECT_GT(image.width(), 300);
}

}  // namespace
}  // namespace motor
