#include "study/methods/hidden_cells.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>
#include <string>

namespace study {
namespace {

// A line of parts and, last, their total: "." for a published cell, "s" for a hidden one.
std::string lineOf(std::vector<long> parts, int below) {
  const std::size_t count = parts.size();
  AxisSum sum{count, std::vector<std::size_t>(count)};
  std::iota(sum.parts.begin(), sum.parts.end(), 0U);
  parts.push_back(std::accumulate(parts.begin(), parts.end(), 0L));
  const HiddenCells cells({{count + 1, {sum}}}, parts, below);
  std::string line;
  for (std::size_t i = 0; i <= count; ++i) line += cells.isHidden({i}) ? 's' : '.';
  return line;
}

TEST(HiddenCells, ProtectALine) {
  EXPECT_EQ(lineOf({1, 2, 3}, 0), "....");
  EXPECT_EQ(lineOf({5, 0, 7}, 5), "....");
  EXPECT_EQ(lineOf({3, 9, 7}, 5), "s.s.");      // the smallest of the others covers it
  EXPECT_EQ(lineOf({3, 0, 7, 9}, 5), "s.s..");  // no deaths cover nothing
  EXPECT_EQ(lineOf({3, 4, 7}, 5), "ss..");      // they cover each other
  EXPECT_EQ(lineOf({1, 1, 7, 9}, 5), "sss..");  // together 2: each would be known to be 1
  EXPECT_EQ(lineOf({0, 3, 0}, 5), ".s.s");      // the total is as small
  EXPECT_EQ(lineOf({1, 2}, 5), "sss");
  EXPECT_EQ(lineOf({4}, 5), "ss");
}

TEST(HiddenCells, HideTheOnlyPartOfAHiddenTotal) {
  // Two rows of two cells, their sums below: a column's cover hides a row's only part, and so its total.
  const Axis rows{3, {{2, {0, 1}}}};
  const Axis columns{2, {{1, {0}}}};
  const HiddenCells cells({rows, columns}, {3, 3, 8, 8, 11, 11}, 5);
  for (std::size_t row = 0; row < 2; ++row) {
    EXPECT_TRUE(cells.isHidden({row, 0}));
    EXPECT_TRUE(cells.isHidden({row, 1}));
  }
  EXPECT_FALSE(cells.isHidden({2, 0}));
}

// Whether some published total has one part hidden, in a table of random small counts by two axes.
TEST(HiddenCells, LeaveNothingToSubtract) {
  constexpr std::size_t kSize = 6;
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    std::vector<long> counts((kSize + 1) * (kSize + 1));
    const auto at = [&](std::size_t row, std::size_t column) -> long& { return counts[row * (kSize + 1) + column]; };
    for (std::size_t row = 0; row < kSize; ++row) {
      for (std::size_t column = 0; column < kSize; ++column) {
        const auto count = static_cast<long>(random() % 12);
        at(row, column) = count;
        at(kSize, column) += count;
        at(row, kSize) += count;
        at(kSize, kSize) += count;
      }
    }
    AxisSum sum{kSize, std::vector<std::size_t>(kSize)};
    std::iota(sum.parts.begin(), sum.parts.end(), 0U);
    const HiddenCells cells({{kSize + 1, {sum}}, {kSize + 1, {sum}}}, counts, 5);
    for (std::size_t line = 0; line <= kSize; ++line) {
      for (const bool isRow : {true, false}) {
        long hidden = 0;
        long together = 0;
        for (std::size_t i = 0; i <= kSize; ++i) {
          const std::size_t row = isRow ? line : i;
          const std::size_t column = isRow ? i : line;
          const bool isSmall = at(row, column) > 0 && at(row, column) < 5;
          EXPECT_TRUE(!isSmall || cells.isHidden({row, column}));
          if (!cells.isHidden({row, column})) continue;
          ++hidden;
          together += at(row, column);
        }
        EXPECT_NE(hidden, 1);
        EXPECT_TRUE(hidden == 0 || together >= 5);
      }
    }
  }
}

}  // namespace
}  // namespace study
