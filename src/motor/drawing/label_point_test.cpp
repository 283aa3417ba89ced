#include "motor/drawing/label_point.h"

#include <gtest/gtest.h>

#include <QPainterPath>
#include <QRectF>
#include <cmath>
#include <limits>

namespace motor {
namespace {

// Ten wide, with a notch of three from the left at its middle.
const QPolygonF kNotched{{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 6}, {3, 5}, {0, 4}, {0, 0}};

TEST(RoomForLabel, MovesALabelSidewaysIntoItsRegion) {
  struct Case {
    QPointF point;
    QSizeF label;
    double x;
  };
  for (const Case& c : {Case{{5, 2}, {4, 1}, 5},      // has room
                        Case{{1, 2}, {4, 1}, 2},      // from the left edge
                        Case{{9, 2}, {4, 1}, 8},      // from the right one
                        Case{{5, 5}, {6, 1}, 6},      // off the notch
                        Case{{5, 5}, {12, 1}, 6.5},   // as far out on either side
                        Case{{5, 9.8}, {4, 1}, 5},    // a row below the region says nothing
                        Case{{5, 20}, {4, 1}, 5}}) {  // outside
    const QPointF centre = roomForLabel({kNotched}, c.point, c.label);
    EXPECT_NEAR(centre.x(), c.x, 1e-9) << c.point.x() << "," << c.point.y() << " " << c.label.width();
    EXPECT_EQ(centre.y(), c.point.y());
  }
}

TEST(RoomForLabel, KeepsOffHoles) {
  const QPolygonF hole{{4, 1}, {6, 1}, {6, 3}, {4, 3}, {4, 1}};
  EXPECT_NEAR(roomForLabel({kNotched, hole}, {3, 2}, {3, 1}).x(), 2.5, 1e-9);
}

TEST(LabelPoint, IsFoundInARegionThatIsHardlyWide) {
  const QPointF least(4.5e6, 4.5e6);
  const QPointF most(std::nextafter(4.5e6, 5e6), 4.5e6 + 1000);
  const QPolygonF ring{least, {most.x(), least.y()}, most, {least.x(), most.y()}, least};
  const QPointF point = labelPoint({ring}, 1e-3);
  EXPECT_NEAR(point.x(), 4.5e6, 1e-6);
  EXPECT_GE(point.y(), least.y());
  EXPECT_LE(point.y(), most.y());
}

double distanceToOutline(const std::vector<QPolygonF>& rings, QPointF p) {
  double nearest = std::numeric_limits<double>::max();
  for (const QPolygonF& ring : rings) {
    for (qsizetype i = 1; i < ring.size(); ++i) {
      for (int step = 0; step <= 1000; ++step) {
        const QPointF q = ring[i - 1] + (ring[i] - ring[i - 1]) * (step / 1000.0);
        nearest = std::min(nearest, std::hypot(q.x() - p.x(), q.y() - p.y()));
      }
    }
  }
  return nearest;
}

TEST(LabelPoint, IsWhereTheOutlineIsFarthest) {
  struct Case {
    const char* what;
    std::vector<QPolygonF> rings;
    double room;  // radius of the largest circle inside
  };
  constexpr double kPrecision = 0.05;
  const Case cases[] = {
      {"square", {QPolygonF(QRectF(0, 0, 10, 10))}, 5},
      {"L", {{{0, 0}, {40, 0}, {40, 10}, {20, 10}, {20, 40}, {0, 40}, {0, 0}}}, 10},
      {"U, its centre of gravity outside",
       {{{0, 0}, {30, 0}, {30, 30}, {24, 30}, {24, 10}, {6, 10}, {6, 30}, {0, 30}, {0, 0}}},
       5.045},
      {"two islands", {QPolygonF(QRectF(0, 0, 4, 4)), QPolygonF(QRectF(20, 0, 10, 10))}, 5},
      {"a hole in the middle", {QPolygonF(QRectF(0, 0, 30, 30)), QPolygonF(QRectF(5, 5, 20, 20))}, 2.93},
  };
  for (const Case& c : cases) {
    const QPointF found = labelPoint(c.rings, kPrecision);
    QPainterPath path;
    for (const QPolygonF& ring : c.rings) path.addPolygon(ring);
    EXPECT_TRUE(path.contains(found)) << c.what;
    EXPECT_GE(distanceToOutline(c.rings, found), c.room - kPrecision) << c.what;
  }
}

TEST(LabelPoint, OfAnEmptyPolygonIsTheMiddleOfItsBounds) {
  EXPECT_EQ(labelPoint({QPolygonF{{2, 4}, {6, 4}, {2, 4}}}, 0.1), QPointF(4, 4));
}

TEST(LabelPoint, OfALongThinPolygonIsFoundSoon) {
  const QPointF found = labelPoint({QPolygonF(QRectF(0, 0, 1e6, 1))}, 0.1);
  EXPECT_NEAR(found.y(), 0.5, 0.11);
}

}  // namespace
}  // namespace motor
