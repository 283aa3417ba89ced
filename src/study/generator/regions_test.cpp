#include "study/generator/regions.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "study/generator/coverage.h"

namespace study::generator {
namespace {

using Numbers = std::vector<std::size_t>;

TEST(GrowRegions, AreConnectedAndHoldTheirSeeds) {
  // A row of nine cells.
  std::vector<Point> sites;
  std::vector<std::pair<std::size_t, std::size_t>> touching;
  for (std::size_t i = 0; i < 9; ++i) {
    sites.push_back({static_cast<double>(i) * 10, 0});
    if (i > 0) touching.emplace_back(i, i - 1);
  }
  const auto around = neighbours(touching, 9);
  EXPECT_EQ(around[0], Numbers{1});
  EXPECT_EQ(around[4], (Numbers{3, 5}));
  Random random(5);
  EXPECT_EQ(growRegions(random, sites, around, {7, 1}, 0), (Numbers{1, 1, 1, 1, 0, 0, 0, 0, 0}));
  const Numbers rough = growRegions(random, sites, around, {7, 1}, 2);
  EXPECT_EQ(rough[7], 0u);
  EXPECT_EQ(rough[1], 1u);
  EXPECT_TRUE(std::is_sorted(rough.rbegin(), rough.rend()));
}

TEST(SeedCells, TakesNoCellTwice) {
  EXPECT_EQ(seedCells({{0, 0}, {10, 0}, {20, 0}}, {{1, 0}, {2, 0}, {0, 0}}), (Numbers{0, 1, 2}));
}

// Cell 1 lies in the middle of cell 0, and touches the outline in one point.
TEST(Outlines, HoleThatTouchesTheOutlineIsARingOfItsOwn) {
  const std::vector<Border> borders{{{{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}}, 0, kOutside},
                                    {{{0, 0}, {5, 2}, {2, 5}, {0, 0}}, 1, 0}};
  const std::vector<Area> areas = outlines(borders, 2);
  ASSERT_EQ(areas[0].size(), 2u);
  EXPECT_EQ(squareMetres(areas[0][0]), 100);
  EXPECT_EQ(squareMetres(areas[0][1]), -10.5);
  ASSERT_EQ(areas[1].size(), 1u);
  EXPECT_EQ(squareMetres(areas[1]), 10.5);
}

TEST(Outlines, PiecesOfBorderAreJoined) {
  const std::vector<Border> borders{{{{10, 0}, {10, 10}, {0, 10}}, 0, kOutside},
                                    {{{10, 0}, {0, 0}, {0, 10}}, kOutside, 0}};
  const std::vector<Area> areas = outlines(borders, 1);
  ASSERT_EQ(areas[0].size(), 1u);
  EXPECT_EQ(areas[0][0].size(), 4u);
  EXPECT_EQ(squareMetres(areas[0]), 100);
}

TEST(Outlines, OpenBorderIsRefused) {
  EXPECT_THROW(static_cast<void>(outlines({{{{0, 0}, {10, 0}, {10, 10}}, 0, kOutside}}, 1)), std::logic_error);
}

}  // namespace
}  // namespace study::generator
