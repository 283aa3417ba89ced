#include "study/coverage.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace study {
namespace {

// Cells 0 and 1 side by side, 2 x 2 each; their border winds through (2.5, 1).
Coverage pair() {
  return {{{{{2, 0}, {2.5, 1}, {2, 2}}, 0, 1},
           {{{2, 2}, {0, 2}, {0, 0}, {2, 0}}, 0, kOutside},
           {{{2, 2}, {4, 2}, {4, 0}, {2, 0}}, kOutside, 1}},
          2};
}

// Cell 0 is a square of 6 x 6 around cell 1, one of 2 x 2.
Coverage nested() {
  return {{{{{0, 0}, {6, 0}, {6, 6}, {0, 6}, {0, 0}}, 0, kOutside}, {{{2, 2}, {4, 2}, {4, 4}, {2, 4}, {2, 2}}, 1, 0}},
          2};
}

TEST(Coverage, NeighboursShareTheirBorderVertexForVertex) {
  const Coverage coverage = pair();
  for (const int cell : {0, 1}) {
    const std::vector<Ring> rings = coverage.outline(cell);
    ASSERT_EQ(rings.size(), 1u);
    EXPECT_EQ(rings[0].size(), 5u);
    EXPECT_NE(std::find(rings[0].begin(), rings[0].end(), Point{2.5, 1}), rings[0].end());
  }
  EXPECT_DOUBLE_EQ(area(coverage.outline(0)), 4.5);
  EXPECT_DOUBLE_EQ(area(coverage.outline(1)), 3.5);
}

TEST(Coverage, MergingDropsInnerBorders) {
  const std::vector<Ring> rings = pair().outline();
  ASSERT_EQ(rings.size(), 1u);
  EXPECT_DOUBLE_EQ(area(rings), 8);
  EXPECT_EQ(std::find(rings[0].begin(), rings[0].end(), Point{2.5, 1}), rings[0].end());
}

TEST(Coverage, EnclosedCellIsAHole) {
  const std::vector<Ring> rings = nested().outline(0);
  ASSERT_EQ(rings.size(), 2u);
  EXPECT_DOUBLE_EQ(area(rings[0]), 36);
  EXPECT_DOUBLE_EQ(area(rings[1]), -4);
  EXPECT_DOUBLE_EQ(area(nested().outline(1)), 4);
}

TEST(Coverage, KnowsItsNeighbours) { EXPECT_EQ(pair().neighbours(), (std::vector<std::vector<int>>{{1}, {0}})); }

TEST(Coverage, GroupsCells) {
  const Coverage one = pair().grouped({0, 0}, 1);
  EXPECT_EQ(one.cellCount(), 1);
  EXPECT_DOUBLE_EQ(area(one.outline(0)), 8);
  const Coverage swapped = pair().grouped({1, 0}, 2);
  EXPECT_DOUBLE_EQ(area(swapped.outline(1)), 4.5);
}

TEST(Coverage, PartsThatTouchInAPointStayApart) {
  // Two unit squares, corner to corner at (1, 1), as one group.
  const Coverage corners({{{{1, 1}, {0, 1}, {0, 0}, {1, 0}, {1, 1}}, 0, kOutside},
                          {{{1, 1}, {2, 1}, {2, 2}, {1, 2}, {1, 1}}, 0, kOutside}},
                         1);
  const std::vector<Ring> rings = corners.outline(0);
  ASSERT_EQ(rings.size(), 2u);
  EXPECT_DOUBLE_EQ(area(rings[0]), 1);
  EXPECT_DOUBLE_EQ(area(rings[1]), 1);
}

TEST(Coverage, JunctionsWithSeveralWaysOnKeepThePartsApart) {
  // The same squares from borders that end at the corner; the walk from (0, 0) leads into it.
  const Coverage turned({{{{0, 0}, {1, 0}, {1, 1}}, 0, kOutside},
                         {{{1, 1}, {2, 1}, {2, 2}}, 0, kOutside},
                         {{{2, 2}, {1, 2}, {1, 1}}, 0, kOutside},
                         {{{1, 1}, {0, 1}, {0, 0}}, 0, kOutside}},
                        1);
  const std::vector<Ring> rings = turned.outline(0);
  ASSERT_EQ(rings.size(), 2u);
  EXPECT_DOUBLE_EQ(area(rings[0]), 1);
  EXPECT_DOUBLE_EQ(area(rings[1]), 1);
}

TEST(Coverage, HoleThatTouchesTheOutlineIsARingOfItsOwn) {
  // A square of 4 x 4 whose hole, a triangle, has a corner in the middle of the lower side.
  const Coverage touched({{{{2, 0}, {4, 0}, {4, 4}, {0, 4}, {0, 0}, {2, 0}}, 0, kOutside},
                          {{{2, 0}, {1, 2}, {3, 2}}, 0, kOutside},
                          {{{3, 2}, {2, 0}}, 0, kOutside}},
                         1);
  const std::vector<Ring> rings = touched.outline(0);
  ASSERT_EQ(rings.size(), 2u);
  EXPECT_DOUBLE_EQ(area(rings), 14);
}

TEST(Coverage, OpenBordersAreAnError) {
  const Coverage open({{{{0, 0}, {1, 0}, {1, 1}}, 0, kOutside}}, 1);
  EXPECT_THROW(static_cast<void>(open.outline(0)), std::logic_error);
}

}  // namespace
}  // namespace study
