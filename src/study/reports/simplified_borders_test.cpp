#include "study/reports/simplified_borders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace study::reports {
namespace {

// Two neighbours whose common border, from (10, 0) to (10, 20), is a fine zigzag.
std::vector<Area> neighbours() {
  Ring left{{0, 0}, {10, 0}};
  Ring right{{10, 0}, {20, 0}, {20, 20}, {10, 20}};
  Ring border;
  for (int i = 1; i < 200; ++i) border.push_back({10 + 0.05 * (i % 2) + (i == 100 ? 4.0 : 0.0), i * 0.1});
  left.insert(left.end(), border.begin(), border.end());
  left.insert(left.end(), {{10, 20}, {0, 20}});
  right.insert(right.end(), border.rbegin(), border.rend());
  return {{left}, {right}};
}

TEST(SimplifiedBorders, DropsWhatIsBelowTheTolerance) {
  const std::vector<Area> simple = simplifiedBorders(neighbours(), 0.5);
  ASSERT_EQ(simple.size(), 2U);
  EXPECT_LT(simple[0][0].size(), 12U);
  const auto isPeak = [](const Point& point) { return point.x > 13; };
  EXPECT_TRUE(std::any_of(simple[0][0].begin(), simple[0][0].end(), isPeak)) << "4 m are above the tolerance";
}

TEST(SimplifiedBorders, KeepsBordersCommon) {
  const std::vector<Area> whole = neighbours();
  const std::vector<Area> simple = simplifiedBorders(whole, 0.5);
  EXPECT_DOUBLE_EQ(squareMetres(simple[0]) + squareMetres(simple[1]), 400);
  for (const Point& node : {Point{10, 0}, Point{10, 20}}) {
    for (const Area& area : simple) {
      EXPECT_NE(std::find(area[0].begin(), area[0].end(), node), area[0].end());
    }
  }
}

TEST(SimplifiedBorders, KeepsAnEnclaveInItsHole) {
  Ring circle;
  for (int i = 0; i < 360; ++i) {
    const double angle = i * 3.141592653589793 / 180;
    circle.push_back({50 + 20 * std::cos(angle), 50 + 20 * std::sin(angle)});
  }
  Ring hole(circle.rbegin(), circle.rend());
  std::rotate(hole.begin(), hole.begin() + 77, hole.end());
  const Ring square{{0, 0}, {100, 0}, {100, 100}, {0, 100}};
  const std::vector<Area> simple = simplifiedBorders({{square, hole}, {circle}}, 0.5);
  ASSERT_EQ(simple[0].size(), 2U);
  EXPECT_LT(simple[1][0].size(), 60U);
  EXPECT_NEAR(squareMetres(simple[0]) + squareMetres(simple[1]), 10'000, 1e-6);
}

TEST(SimplifiedBorders, LeavesOutWhatShrinksToALine) {
  const Ring island{{0, 0}, {10, 0}, {10, 0.1}, {0, 0.1}};
  EXPECT_TRUE(simplifiedBorders({{island}}, 1)[0].empty());
  EXPECT_TRUE(simplifiedBorders({{}}, 1)[0].empty());
}

}  // namespace
}  // namespace study::reports
