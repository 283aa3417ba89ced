#include "motor/drawing/label_box.h"

#include <gtest/gtest.h>

namespace motor {
namespace {

const QRectF kBox(-20, -5, 40, 10);  // about its middle

TEST(LabelBox, UprightBoxesMeetWhereTheirRectanglesDo) {
  EXPECT_TRUE(LabelBox(QRectF(0, 0, 10, 10)).intersects(LabelBox(QRectF(9, 9, 10, 10))));
  EXPECT_FALSE(LabelBox(QRectF(0, 0, 10, 10)).intersects(LabelBox(QRectF(10, 0, 10, 10))));
}

TEST(LabelBox, TurnsCounterClockwiseAboutItsPivot) {
  const LabelBox upright(QRectF(0, -5, 40, 10), {50, 50}, 90);
  EXPECT_NEAR(upright.bounds().top(), 10, 1e-9);
  EXPECT_NEAR(upright.bounds().bottom(), 50, 1e-9);
  EXPECT_NEAR(upright.bounds().left(), 45, 1e-9);
}

TEST(LabelBox, TurnedBoxesSideBySideDoNotMeet) {
  const LabelBox first(kBox, {50, 50}, 45);
  const LabelBox beside(kBox, {60, 60}, 45);  // across: 14 pixels apart, 10 high
  EXPECT_TRUE(first.bounds().intersects(beside.bounds()));
  EXPECT_FALSE(first.intersects(beside));
  EXPECT_TRUE(first.intersects(LabelBox(kBox, {55, 55}, 45)));
  EXPECT_TRUE(first.intersects(LabelBox(kBox, {50, 50}, -45))) << "a cross";
  EXPECT_FALSE(first.intersects(LabelBox(QRectF(55, 55, 10, 10)))) << "in the empty corner of its bounds";
}

}  // namespace
}  // namespace motor
