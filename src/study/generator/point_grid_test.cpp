#include "study/generator/point_grid.h"

#include <gtest/gtest.h>

#include "study/generator/random.h"

namespace study::generator {
namespace {

std::vector<Point> somePoints(Random& random, std::size_t count) {
  std::vector<Point> points;
  for (std::size_t i = 0; i < count; ++i) {
    // Half of them crowd in one corner.
    const double size = i % 2 == 0 ? 100'000 : 3'000;
    points.push_back(onWholeMetres({random.between(0, size), random.between(0, size)}));
  }
  return points;
}

std::size_t nearestOfAll(const std::vector<Point>& points, Point p) {
  std::size_t best = 0;
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (squaredDistance(points[i], p) < squaredDistance(points[best], p)) best = i;
  }
  return best;
}

TEST(PointGrid, FindsTheNearestOfAllPoints) {
  Random random(4);
  const std::vector<Point> points = somePoints(random, 500);
  const PointGrid grid(points);
  for (int i = 0; i < 2'000; ++i) {
    const Point p{random.between(-60'000, 160'000), random.between(-60'000, 160'000)};
    EXPECT_EQ(grid.nearest(p), nearestOfAll(points, p));
  }
}

TEST(PointGrid, ForgetsWhatIsTakenOut) {
  const std::vector<Point> points{{0, 0}, {10, 0}, {500, 0}};
  PointGrid grid(points);
  EXPECT_EQ(grid.nearest({1, 0}), 0u);
  grid.remove(0, points[0]);
  EXPECT_EQ(grid.nearest({1, 0}), 1u);
  grid.remove(1, points[1]);
  grid.remove(2, points[2]);
  EXPECT_EQ(grid.nearest({1, 0}), std::nullopt);
}

TEST(PointGrid, KnowsWhetherAPointIsNear) {
  const PointGrid grid(std::vector<Point>{{0, 0}, {1'000, 0}});
  EXPECT_TRUE(grid.hasWithin({30, 40}, 50.5));
  EXPECT_FALSE(grid.hasWithin({30, 40}, 50));
  EXPECT_TRUE(grid.hasWithin({-300, 0}, 301));
}

}  // namespace
}  // namespace study::generator
