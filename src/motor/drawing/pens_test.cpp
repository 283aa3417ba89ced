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
  for (const Case& c : {Case{0, 0}, Case{1, 1}, Case{7, 7}, Case{10, 10}, Case{40, 4}, Case{17, 0.7 * 4 / 3},
                        Case{1'000'000'000, 256}}) {
    EXPECT_DOUBLE_EQ(penWidth({c.width, 2, 0}), c.pixels) << c.width;
  }
}

TEST(Pens, PatternOneAndWidthNothingDrawNothing) {
  EXPECT_TRUE(penStrokes({1, 1, 0}).empty());
  EXPECT_TRUE(penStrokes({0, 2, 0}).empty());
  EXPECT_TRUE(penStrokes({1, 128 + 1, 0}).empty());
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

TEST(Pens, InterleavedPatternsDrawTheirLine) {
  EXPECT_EQ(drawn({1, 128 + 9, kInkColour}), drawn({1, 9, kInkColour}));
  EXPECT_TRUE(isInterleaved({1, 128 + 9, 0}));
  EXPECT_FALSE(isInterleaved({1, 9, 0}));
}

TEST(Pens, HairlinesKeepTheirDashesApart) {
  const QPen pen = penStrokes({11, 6, 0}).front();
  EXPECT_NEAR(pen.dashPattern().front() * pen.widthF(), 4, 1e-9) << "pixels";
}

TEST(Pens, ArrowsStandAtTheirEnds) {
  EXPECT_EQ(drawn({1, 54, kInkColour}).pixel(54, 10), kInk);
  EXPECT_EQ(drawn({1, 2, kInkColour}).pixel(54, 10), 0xFFFFFFFF);
}

TEST(Pens, ALineEndsInsideItsArrowHeads) {
  const QPolygonF line{{0, 0}, {100, 0}};
  const QPolygonF both = shaftOf({3, 56, 0}, line);
  EXPECT_GT(both.front().x(), 5);
  EXPECT_LT(both.back().x(), 95);
  EXPECT_EQ(shaftOf({3, 2, 0}, line), line);
  const QPolygonF bent = shaftOf({3, 54, 0}, {{0, 0}, {90, 0}, {95, 0}, {100, 0}});
  EXPECT_LT(bent.back().x(), 95) << "beyond the last corner";
  EXPECT_EQ(shaftOf({3, 56, 0}, {{0, 0}, {2, 0}}).size(), 2) << "a line shorter than its heads";
}

// A tick at a bend is as long and as thick as any other.
TEST(Pens, TicksStayStraightAtBends) {
  const QImage image = picture({60, 60}, 1, [&](QPainter& painter) {
    QPen ticks(QColor::fromRgb(kInk), 20);
    ticks.setDashPattern({0.1, 1});  // 2 and 20 pixels
    drawStroke(painter, ticks, {{10, 20}, {31, 20}, {31, 60}});
  });
  EXPECT_NEAR(small::countOf(image, kInk), 3 * 2 * 20, 24) << "two beside the bend, one on it";
}

// The tip of a thick arrow is a point.
TEST(Pens, ThickArrowsAreSharp) {
  const QImage image = picture({64, 40}, 1, [&](QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    paintLine(painter, {7, 54, kInkColour}, {{4, 20}, {60, 20}});
  });
  const auto inkAcross = [&](int x) { return small::countOf(image.copy(x, 0, 1, 40), kInk); };
  EXPECT_EQ(inkAcross(10), 6) << "the shaft, less its smooth edges";
  EXPECT_GT(inkAcross(36), 14) << "the head";
  EXPECT_LE(inkAcross(58), 2) << "the tip";
}

}  // namespace
}  // namespace motor
