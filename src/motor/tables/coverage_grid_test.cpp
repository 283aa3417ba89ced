#include "motor/tables/coverage_grid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "motor/tables/testing_regions.h"

namespace motor {
namespace {

using Answer = CoverageGrid::Answer;

// Asks about points all over the box and beyond it, about the border and about where cells meet. Each answer has to be
// the region's; returns the part of the points in the box that had one.
double partAnswered(const MapObject& region) {
  const CoverageGrid grid(region, RegionIndex(region));
  const Box& box = region.bounds;
  const double width = box.maxX - box.minX;
  const double height = box.maxY - box.minY;
  const auto agrees = [&](Point p) {
    const Answer answer = grid.at(p);
    if (answer == Answer::unknown) return false;
    EXPECT_EQ(answer == Answer::inside, contains(region, p)) << p.x << ' ' << p.y;
    return true;
  };
  for (std::size_t i = 0; i + 1 < region.points.size(); ++i) {
    const Point& a = region.points[i];
    const Point& b = region.points[i + 1];
    for (const double along : {0.0, 0.25, 0.5, 0.9}) agrees({a.x + along * (b.x - a.x), a.y + along * (b.y - a.y)});
  }
  constexpr int kLines = 64;
  for (int i = -1; i <= kLines + 1; ++i) {
    for (int j = -1; j <= kLines + 1; ++j) agrees({box.minX + width * i / kLines, box.minY + height * j / kLines});
  }
  constexpr int kPoints = 20'000;
  std::mt19937 random(11);
  std::uniform_real_distribution<double> part(0, 1);
  int answered = 0;
  for (int i = 0; i < kPoints; ++i) {
    answered += agrees({box.minX + width * part(random), box.minY + height * part(random)}) ? 1 : 0;
    agrees({box.minX + width * (3 * part(random) - 1), box.minY + height * (3 * part(random) - 1)});
  }
  return static_cast<double>(answered) / kPoints;
}

TEST(CoverageGrids, KnowMostOfARegion) {
  EXPECT_GT(partAnswered(regionOf({star({500000, 4500000}, 1000, 100, 5)})), 0.6);
  EXPECT_GT(partAnswered(regionOf({star({-3.7, 40.4}, 0.01, 3000, 2)})), 0.6);
}

TEST(CoverageGrids, KnowPartsAndHoles) {
  const MapObject region =
      regionOf({star({0, 0}, 1000, 300, 3), star({100, 50}, 400, 90, 4), star({2500, 900}, 300, 40, 2)});
  EXPECT_GT(partAnswered(region), 0.5);
  const CoverageGrid grid(region, RegionIndex(region));
  EXPECT_EQ(grid.at({100, 50}), Answer::outside) << "in the hole";
  EXPECT_EQ(grid.at({2500, 900}), Answer::inside) << "in the island";
  EXPECT_EQ(grid.at({1900, 0}), Answer::outside) << "between the two";
}

TEST(CoverageGrids, LevelAndUprightEdges) {
  EXPECT_GT(partAnswered(regionOf({{{0, 0}, {4, 0}, {4, 4}, {2, 4}, {2, 2}, {0, 2}, {0, 0}}})), 0.6);
}

// Thin needles through many cells, of which each row has but a short piece.
TEST(CoverageGrids, SteepAndFlatNeedles) {
  EXPECT_GT(partAnswered(regionOf({{{0, 0}, {1000, 999}, {1000, 1000}, {0, 0}}})), 0.6);
  EXPECT_GT(partAnswered(regionOf({{{0, 0}, {1000, 1}, {1, 700}, {0, 0}}})), 0.5);
}

TEST(CoverageGrids, KnowNothingAtAndBeyondTheBox) {
  const MapObject region = regionOf({{{0, 0}, {8, 0}, {8, 8}, {0, 8}, {0, 0}}});
  const CoverageGrid grid(region, RegionIndex(region));
  EXPECT_EQ(grid.at({4, 4}), Answer::inside);
  for (const Point p :
       {Point{0, 4}, {8, 4}, {4, 0}, {4, 8}, {-1, 4}, {9, 4}, {4, -1}, {4, 9}, {std::nan(""), 4}, {4, std::nan("")}}) {
    EXPECT_EQ(grid.at(p), Answer::unknown) << p.x << ' ' << p.y;
  }
}

TEST(CoverageGrids, KnowNothingWithoutARegionThatIsWideEnough) {
  EXPECT_EQ(CoverageGrid().at({0, 0}), Answer::unknown);
  for (const MapObject& region :
       {regionOf({}), regionOf({{{0, 1}, {4, 1}, {0, 1}}}), regionOf({star({5e12, 5e12}, 1000, 20, 3)})}) {
    EXPECT_EQ(partAnswered(region), 0);
  }
}

}  // namespace
}  // namespace motor
