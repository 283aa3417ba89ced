#include "study/model/area.h"

#include <gtest/gtest.h>

namespace study {
namespace {

// A square on the plane where maps of a region lie, far from the origin.
Ring square(double side) {
  constexpr double kEast = 500'000;
  constexpr double kNorth = 4'650'000;
  return {{kEast, kNorth}, {kEast + side, kNorth}, {kEast + side, kNorth + side}, {kEast, kNorth + side}};
}

Ring reversed(const Ring& ring) { return {ring.rbegin(), ring.rend()}; }

TEST(Area, IsPositiveCounterClockwiseAndNegativeForHoles) {
  EXPECT_DOUBLE_EQ(squareMetres(square(100)), 10'000);
  EXPECT_DOUBLE_EQ(squareMetres(reversed(square(100))), -10'000);
  EXPECT_DOUBLE_EQ(squareMetres(Area{square(100), reversed(square(10))}), 9'900);
  EXPECT_DOUBLE_EQ(squareMetres(Ring{{0, 0}, {4, 0}, {0, 3}}), 6);
}

TEST(Area, KeepsSmallAreasFarFromTheOrigin) {
  // Sums of products of whole coordinates would err by some square centimetres.
  constexpr double kEast = 500'000.1;
  constexpr double kNorth = 4'650'000.7;
  const Ring small{
      {kEast, kNorth}, {kEast + 0.3, kNorth + 0.1}, {kEast + 0.2, kNorth + 0.4}, {kEast - 0.1, kNorth + 0.3}};
  EXPECT_NEAR(squareMetres(small), 0.1, 1e-8);
}

TEST(Area, OfNothingIsNone) {
  EXPECT_EQ(squareMetres(Ring{}), 0);
  EXPECT_EQ(squareMetres(Ring{{1, 1}, {2, 2}}), 0);
  EXPECT_EQ(squareMetres(Area{}), 0);
}

TEST(Area, ExtentHoldsEveryRing) {
  const Extent box = extent(Area{{{-3, 2}, {1, 2}, {0, 7}}, {{10, -1}, {12, -1}, {11, 0}}});
  EXPECT_EQ(box, (Extent{-3, -1, 12, 7}));
  EXPECT_DOUBLE_EQ(box.width(), 15);
  EXPECT_DOUBLE_EQ(box.height(), 8);
  EXPECT_EQ(box.centre(), (Point{4.5, 3}));
}

}  // namespace
}  // namespace study
