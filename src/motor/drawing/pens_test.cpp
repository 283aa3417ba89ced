#include "motor/drawing/pens.h"

#include <gtest/gtest.h>

#include "motor/drawing/pen_patterns.h"
#include "motor/drawing/small_pictures.h"

namespace motor {
namespace {

using small::blank;
using small::kInk;
using small::kInkColour;
using small::picture;

QImage drawn(const Pen& pen) {
  return picture({64, 16}, 1, [&](QPainter& painter) {
    for (const QPen& stroke : penStrokes(pen)) {
      painter.setPen(stroke);
      painter.drawLine(QPointF(0, 8.5), QPointF(64, 8.5));
    }
    paintArrowHeads(painter, pen, QPolygonF{{0, 8.5}, {60, 8.5}});
  });
}

TEST(Pens, WidthsArePixelsOrPoints) {
  struct Case {
    int width;
    double pixels;
  };
  for (const Case& c : {Case{0, 0}, Case{1, 1}, Case{7, 7}, Case{10, 10}, Case{40, 4}, Case{17, 0.7 * 4 / 3}}) {
    EXPECT_DOUBLE_EQ(penWidth({c.width, 2, 0}), c.pixels) << c.width;
  }
}

TEST(Pens, PatternOneAndWidthNothingDrawNothing) {
  EXPECT_TRUE(penStrokes({1, 1, 0}).empty());
  EXPECT_TRUE(penStrokes({0, 2, 0}).empty());
  EXPECT_FALSE(isVisible(Pen{0, 1, 0}));
}

TEST(Pens, EveryPatternDrawsItsColour) {
  for (int pattern = 2; pattern <= 118; ++pattern) {
    EXPECT_EQ(penPattern(pattern).number, pattern);
    EXPECT_NE(drawn({1, pattern, kInkColour}), blank({64, 16})) << pattern;
  }
}

TEST(Pens, DashesAreMultiplesOfTheWidth) {
  const QPen pen = penStrokes({3, 6, 0}).front();
  EXPECT_EQ(pen.dashPattern(), (QList<qreal>{4, 2}));
  EXPECT_DOUBLE_EQ(pen.widthF(), 3);
  const QImage image = drawn({2, 5, kInkColour});  // six pixels on, six off
  EXPECT_EQ(image.pixel(3, 8), kInk);
  EXPECT_EQ(image.pixel(9, 8), 0xFFFFFFFF);
  EXPECT_EQ(image.pixel(15, 8), kInk);
}

TEST(Pens, DoubleLinesAreOpenInside) {
  const QImage image = drawn({1, 65, kInkColour});
  EXPECT_EQ(image.pixel(30, 6), kInk);
  EXPECT_EQ(image.pixel(30, 8), 0xFFFFFFFF);
  EXPECT_EQ(image.pixel(30, 10), kInk);
}

TEST(Pens, InterleavedPatternsDrawTheirLine) { EXPECT_EQ(drawn({1, 128 + 9, kInkColour}), drawn({1, 9, kInkColour})); }

TEST(Pens, ArrowsStandAtTheirEnds) {
  EXPECT_EQ(drawn({1, 54, kInkColour}).pixel(54, 10), kInk);
  EXPECT_EQ(drawn({1, 2, kInkColour}).pixel(54, 10), 0xFFFFFFFF);
}

}  // namespace
}  // namespace motor
