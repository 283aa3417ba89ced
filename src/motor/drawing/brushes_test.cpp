#include "motor/drawing/brushes.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "motor/drawing/brush_patterns.h"
#include "motor/drawing/small_pictures.h"

namespace motor {
namespace {

using small::countOf;
using small::kInk;
using small::kInkColour;
using small::picture;

QImage filled(const Brush& brush, double devicePixelRatio = 1) {
  return picture({32, 32}, devicePixelRatio,
                 [&](QPainter& painter) { painter.fillRect(0, 0, 32, 32, toQBrush(brush, devicePixelRatio)); });
}

TEST(Brushes, OneIsEmptyAndTwoIsSolid) {
  EXPECT_EQ(toQBrush({1, kInkColour, 0}, 1).style(), Qt::NoBrush);
  EXPECT_EQ(countOf(filled({2, kInkColour, kTransparent}), kInk), 32 * 32);
}

TEST(Brushes, EveryPatternShowsBothColoursAndDiffersFromTheOthers) {
  std::set<std::string> seen;
  for (int number = 3; number <= 71; ++number) {
    if (number > 8 && number < 12) continue;
    ASSERT_NE(brushPattern(number), nullptr) << number;
    const QImage image = filled({number, kInkColour, 0xFFFF00});
    int inkPixels = 0;
    int groundPixels = 0;
    for (int y = 0; y < 32; ++y) {
      for (int x = 0; x < 32; ++x) {
        inkPixels += qRed(image.pixel(x, y)) < 0x30;
        groundPixels += qRed(image.pixel(x, y)) > 0xC0;
      }
    }
    EXPECT_GT(inkPixels, 0) << number;
    EXPECT_GT(groundPixels, 0) << number;
    const std::string bytes(reinterpret_cast<const char*>(image.constBits()),
                            static_cast<std::size_t>(image.sizeInBytes()));
    EXPECT_TRUE(seen.insert(bytes).second) << number << " looks like another pattern";
  }
}

TEST(Brushes, WithoutBackColourTheGapsStayOpen) {
  const QImage image = filled({13, kInkColour, kTransparent});
  EXPECT_EQ(countOf(image, kInk), 32 * 32 / 2);
  EXPECT_EQ(countOf(image, 0xFFFFFFFF), 32 * 32 / 2);
}

TEST(Brushes, UseTheDevicesPixels) {
  for (const int number : {3, 4, 7, 13, 22, 56}) {
    const QImage fine = filled({number, kInkColour, 0xFFFF00}, 2);
    EXPECT_EQ(countOf(fine, kInk), 4 * countOf(filled({number, kInkColour, 0xFFFF00}), kInk)) << number;
    EXPECT_EQ(countOf(fine, kInk) + countOf(fine, 0xFFFFFF00), 64 * 64) << number;
  }
}

}  // namespace
}  // namespace motor
