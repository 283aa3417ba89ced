#include "motor/session/ground_distance.h"

#include <gtest/gtest.h>

#include <cmath>

namespace motor {
namespace {

TEST(GroundDistance, IsMeasuredOnTheSystemsOwnEllipsoid) {
  struct Case {
    const char* clause;
    double semiMajorAxis, inverseFlattening;
  };
  for (const Case& c : {Case{"Earth Projection 1, 104", 6378137, 298.257223563},
                        // European Datum 1950, with its ellipsoid's published measures.
                        Case{"Earth Projection 1, 28", 6378388, 297},
                        Case{"Earth Projection 8, 28, \"m\", -3, 0, 0.9996, 500000, 0", 6378388, 297}}) {
    const GroundDistance distance(CoordinateSystem::fromClause(c.clause));
    EXPECT_DOUBLE_EQ(distance.ellipsoid().semiMajorAxis, c.semiMajorAxis) << c.clause;
    EXPECT_NEAR(1 / distance.ellipsoid().flattening, c.inverseFlattening, 1e-6) << c.clause;
  }
}

// The same two places in degrees and on a projected grid are as far apart.
TEST(GroundDistance, DoesNotDependOnTheProjection) {
  const CoordinateSystem degrees;
  const CoordinateSystem grid = CoordinateSystem::fromClause("Earth Projection 8, 104, \"km\", -3, 0, 0.9996, 500, 0");
  const Transformation toGrid(degrees, grid);
  const Point a{-3.5, 40.1};
  const Point b{-1.25, 42.75};
  const double onTheEllipsoid = GroundDistance(degrees)(a, b);
  EXPECT_NEAR(onTheEllipsoid, 348885, 1000);
  EXPECT_NEAR(GroundDistance(grid)(toGrid(a), toGrid(b)), onTheEllipsoid, onTheEllipsoid * 1e-9);
  const double onPaper = std::hypot(toGrid(b).x - toGrid(a).x, toGrid(b).y - toGrid(a).y) * 1000;
  EXPECT_GT(std::abs(onPaper - onTheEllipsoid), 1) << "the projection is not true to length";
}

TEST(GroundDistance, IsStraightOnAPlainGrid) {
  EXPECT_DOUBLE_EQ(GroundDistance(CoordinateSystem::fromClause("NonEarth Units \"km\""))({0, 0}, {3, 4}), 5000);
}

TEST(GroundDistance, HasNoneToWhereThereIsNoEarth) {
  const GroundDistance distance(
      CoordinateSystem::fromClause("Earth Projection 8, 104, \"m\", -3, 0, 0.9996, 500000, 0"));
  EXPECT_TRUE(std::isnan(distance({500000, 4500000}, {std::nan(""), 0})));
}

// East of a projection's central meridian, true north lies to the left of the grid's: the meridians meet at the pole.
TEST(GroundDistance, KnowsWhereNorthIs) {
  const CoordinateSystem grid =
      CoordinateSystem::fromClause("Earth Projection 8, 104, \"m\", -3, 0, 0.9996, 500000, 0");
  const GroundDistance distance(grid);
  const Transformation toGrid(CoordinateSystem(), grid);
  EXPECT_NEAR(distance.northAt(toGrid(Point{-3, 41})), 0, 1e-4);
  // The convergence of the meridians, to first order the longitude times the sine of the latitude.
  EXPECT_NEAR(distance.northAt(toGrid(Point{-1, 41})), -2 * 0.65606, 2e-3);
  EXPECT_EQ(GroundDistance(CoordinateSystem()).northAt({-1, 41}), 0);
}

}  // namespace
}  // namespace motor
