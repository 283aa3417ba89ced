#include "motor/drawing/line_place.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace motor {
namespace {

const QRectF kWindow(0, 0, 200, 200);

TEST(LinePlace, IsTheMiddleOfAStraightLine) {
  const auto place = linePlace({{{20, 100}, {120, 100}}}, kWindow, 30);
  ASSERT_TRUE(place);
  EXPECT_NEAR(place->at.x(), 70, 1e-9);
  EXPECT_NEAR(place->at.y(), 100, 1e-9);
  EXPECT_NEAR(place->degrees, 0, 1e-9);
}

TEST(LinePlace, TextsStayUpright) {
  struct Case {
    QPointF to;
    double degrees;
  };
  for (const Case& c : {Case{{150, 50}, 45}, Case{{50, 150}, 45}, Case{{150, 150}, -45}, Case{{50, 50}, -45},
                        Case{{100, 20}, 90}, Case{{100, 180}, 90}, Case{{20, 100}, 0}}) {
    const auto place = linePlace({{{100, 100}, c.to}}, kWindow, 20);
    ASSERT_TRUE(place);
    EXPECT_NEAR(place->degrees, c.degrees, 1e-9) << c.to.x() << "," << c.to.y();
  }
}

TEST(LinePlace, IsInTheWindow) {
  const auto place = linePlace({{{-1000, 50}, {100, 50}, {100, 5000}}}, kWindow, 60);
  ASSERT_TRUE(place);
  EXPECT_TRUE(kWindow.contains(place->at));
  EXPECT_FALSE(linePlace({{{-10, -10}, {-10, 300}}}, kWindow, 60));
  EXPECT_FALSE(linePlace({{{10, 10}, {10, 10}}}, kWindow, 60)) << "a line without length";
}

TEST(LinePlace, PrefersTheStraightPart) {
  QPolygonF line{{10, 150}, {100, 150}};
  for (int i = 0; i < 60; ++i) line.append({101.0 + 1.5 * i, 150 + (i % 2 == 0 ? 9.0 : -9.0)});
  const auto place = linePlace({line}, kWindow, 50);
  ASSERT_TRUE(place);
  EXPECT_LT(place->at.x(), 80);
  EXPECT_NEAR(place->degrees, 0, 1e-6);
}

TEST(LinePlace, OfALineShorterThanTheLabelIsItsMiddle) {
  const auto place = linePlace({{{90, 100}, {100, 100}}}, kWindow, 80);
  ASSERT_TRUE(place);
  EXPECT_NEAR(place->at.x(), 95, 1e-9);
}

}  // namespace
}  // namespace motor
