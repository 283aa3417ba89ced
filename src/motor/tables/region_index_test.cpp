#include "motor/tables/region_index.h"

#include <gtest/gtest.h>

#include <random>

#include "motor/tables/testing_regions.h"

namespace motor {
namespace {

constexpr Point kCentre{500000, 4500000};

TEST(RegionIndexes, AgreeWithTheRegionEverywhere) {
  const MapObject region = regionOf({star(kCentre, 1000, 997, 9), star(kCentre, 400, 61, 5)});
  const RegionIndex index(region);
  std::mt19937 random(7);
  std::uniform_real_distribution<double> offset(-1400, 1400);
  int inside = 0;
  for (int i = 0; i < 20'000; ++i) {
    const Point p{kCentre.x + offset(random), kCentre.y + offset(random)};
    ASSERT_EQ(index.contains(p), contains(region, p)) << p.x << ' ' << p.y;
    inside += index.contains(p) ? 1 : 0;
  }
  EXPECT_GT(inside, 3'000);
  EXPECT_LT(inside, 17'000);
}

TEST(RegionIndexes, TheBorderCountsAsInside) {
  const MapObject region = regionOf({star(kCentre, 1000, 250, 4)});
  const RegionIndex index(region);
  for (const Point& p : region.points) EXPECT_TRUE(index.contains(p));
}

TEST(RegionIndexes, LevelEdgesAndCorners) {
  const MapObject square = regionOf({{{0, 0}, {4, 0}, {4, 4}, {2, 4}, {2, 2}, {0, 2}, {0, 0}}});
  const RegionIndex index(square);
  for (double x = -0.5; x <= 4.5; x += 0.25) {
    for (double y = -0.5; y <= 4.5; y += 0.25) {
      EXPECT_EQ(index.contains({x, y}), contains(square, {x, y})) << x << ' ' << y;
    }
  }
}

TEST(RegionIndexes, ARegionWithoutHeightOrWithoutPoints) {
  EXPECT_TRUE(RegionIndex(regionOf({{{0, 1}, {4, 1}, {0, 1}}})).contains({2, 1}));
  EXPECT_FALSE(RegionIndex(regionOf({})).contains({0, 0}));
}

}  // namespace
}  // namespace motor
