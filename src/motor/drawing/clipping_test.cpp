#include "motor/drawing/clipping.h"

#include <gtest/gtest.h>

namespace motor {
namespace {

const QRectF kArea(0, 0, 10, 10);

double areaOf(const QPolygonF& ring) {
  double doubled = 0;
  for (qsizetype i = 1; i < ring.size(); ++i) doubled += ring[i - 1].x() * ring[i].y() - ring[i].x() * ring[i - 1].y();
  return std::abs(doubled) / 2;
}

TEST(Clipping, CutsRingsAtTheSides) {
  struct Case {
    QPolygonF ring;
    double area;
  };
  const Case cases[] = {
      {QPolygonF(QRectF(2, 2, 3, 3)), 9},          // inside
      {QPolygonF(QRectF(-5, -5, 10, 10)), 25},     // over a corner
      {QPolygonF(QRectF(-5, -5, 100, 100)), 100},  // around everything
      {QPolygonF(QRectF(20, 20, 5, 5)), 0},        // outside
      {QPolygonF{{-5, 5}, {5, -5}, {15, 5}, {5, 15}, {-5, 5}}, 100},
      {QPolygonF{{0, 5}, {5, 0}, {10, 5}, {5, 10}, {0, 5}}, 50},
  };
  for (const Case& c : cases) EXPECT_NEAR(areaOf(clippedRing(c.ring, kArea)), c.area, 1e-9);
}

TEST(Clipping, FarPointsLeaveNothingOutside) {
  const QRectF room = kArea.adjusted(-1e-9, -1e-9, 1e-9, 1e-9);
  const QPolygonF far{{-1e100, 3e99}, {2e100, 7}, {5, 1e80}, {5, 5}, {-1e100, 3e99}};
  for (const QPointF& p : clippedRing(far, kArea)) EXPECT_TRUE(room.contains(p)) << p.x() << " " << p.y();
  for (const QPolygonF& piece : clippedLine(far, kArea)) {
    for (const QPointF& p : piece) EXPECT_TRUE(room.contains(p)) << p.x() << " " << p.y();
  }
}

TEST(Clipping, CutsLinesIntoThePiecesThatAreInside) {
  struct Case {
    QPolygonF line;
    std::vector<QPolygonF> pieces;
  };
  const Case cases[] = {
      {{{1, 1}, {5, 1}, {5, 5}}, {{{1, 1}, {5, 1}, {5, 5}}}},
      {{{-5, 5}, {15, 5}}, {{{0, 5}, {10, 5}}}},
      {{{-5, 20}, {15, 20}}, {}},
      {{{5, 5}, {15, 5}, {15, 8}, {5, 8}}, {{{5, 5}, {10, 5}}, {{10, 8}, {5, 8}}}},
      {{{5, -5}, {5, 5}, {20, 20}}, {{{5, 0}, {5, 5}, {10, 10}}}},
  };
  for (const Case& c : cases) EXPECT_EQ(clippedLine(c.line, kArea), c.pieces);
}

}  // namespace
}  // namespace motor
