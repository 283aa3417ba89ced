#include "motor/drawing/thinned_points.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace motor {
namespace {

using Points = std::vector<GridPoint>;

// A ragged line of so many points.
Points coast(int count) {
  Points points;
  for (int i = 0; i < count; ++i) {
    points.push_back({2 * i, static_cast<std::int32_t>(std::lround(20 * std::sin(i / 30.0) + 2 * std::sin(i * 1.7)))});
  }
  return points;
}

double distance(GridPoint p, GridPoint a, GridPoint b) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double length = dx * dx + dy * dy;
  const double t = length > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / length, 0.0, 1.0) : 0;
  return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
}

double distance(GridPoint p, const Points& line) {
  double least = 1e9;
  for (std::size_t i = 1; i < line.size(); ++i) least = std::min(least, distance(p, line[i - 1], line[i]));
  return least;
}

TEST(ThinnedPoints, LeaveNoPointFarBeside) {
  const Points line = coast(3000);
  const Points thinned = thinnedLine(line, {0, 0});
  EXPECT_LT(thinned.size(), line.size() * 3 / 4);
  EXPECT_EQ(thinned.front(), line.front());
  EXPECT_EQ(thinned.back(), line.back());
  for (const GridPoint p : line) EXPECT_LE(distance(p, thinned), 0.7501) << p.x << ' ' << p.y;
}

TEST(ThinnedPoints, OfAStraightLineFewAreLeft) {
  Points line;
  for (int i = 0; i < 1600; ++i) line.push_back({3 * i, i});
  EXPECT_LT(thinnedLine(line, {0, 0}).size(), line.size() / 8);
}

TEST(ThinnedPoints, ASpikeStays) {
  EXPECT_EQ(thinnedLine({{0, 0}, {9, 0}, {4, 0}}, {0, 0}), (Points{{0, 0}, {9, 0}, {4, 0}}));
}

TEST(ThinnedPoints, AreTheSameWhicheverWayALineRuns) {
  Points line = coast(3000);
  Points thinned = thinnedLine(line, {0, 0});
  std::reverse(line.begin(), line.end());
  std::reverse(thinned.begin(), thinned.end());
  EXPECT_EQ(thinnedLine(line, {0, 0}), thinned);
}

// Two regions on either side of a coast: their grids begin elsewhere, and so do their rings.
TEST(ThinnedPoints, NeighboursKeepTheSamePointsOfTheirBorder) {
  const Points border = coast(2000);
  Points north = border;
  north.insert(north.end(), {{3998, 500}, {0, 500}, border.front()});
  Points south;
  for (std::size_t i = border.size(); i-- > 700;) south.push_back({border[i].x - 100, border[i].y + 300});
  for (std::size_t i = 700; i-- > 0;) south.push_back({border[i].x - 100, border[i].y + 300});
  south.insert(south.end(), {{-100, -200}, {3898, -200}, south.front()});
  std::rotate(south.begin(), south.begin() + 500, south.end() - 1);
  south.back() = south.front();
  const Points keptInNorth = thinnedRing(north, {0, 0});
  const Points keptInSouth = thinnedRing(south, {100, -300});
  std::size_t compared = 0;
  for (const GridPoint p : border) {
    if (p.x < 300 || p.x > 3700) continue;  // near the ends, where the third neighbour begins
    const bool inNorth = std::find(keptInNorth.begin(), keptInNorth.end(), p) != keptInNorth.end();
    const GridPoint fromSouth{p.x - 100, p.y + 300};
    const bool inSouth = std::find(keptInSouth.begin(), keptInSouth.end(), fromSouth) != keptInSouth.end();
    ASSERT_EQ(inNorth, inSouth) << p.x;
    compared += inNorth ? 1 : 0;
  }
  EXPECT_GT(compared, 100U);
}

TEST(ThinnedPoints, ARingStaysARing) {
  Points ring;
  for (int i = 0; i < 400; ++i) {
    ring.push_back({static_cast<std::int32_t>(std::lround(300 * std::cos(i * M_PI / 200))),
                    static_cast<std::int32_t>(std::lround(300 * std::sin(i * M_PI / 200)))});
  }
  ring.push_back(ring.front());
  const Points thinned = thinnedRing(ring, {7, 7});
  EXPECT_EQ(thinned.front(), thinned.back());
  EXPECT_LT(thinned.size(), ring.size() / 2);
  for (const GridPoint p : ring) EXPECT_LE(distance(p, thinned), 0.7501);
}

TEST(ThinnedPoints, ARingThatWouldShrinkToALineStaysWhole) {
  const Points sliver = {{0, 0}, {5, 0}, {10, 0}, {10, 1}, {5, 1}, {0, 0}};
  EXPECT_GE(thinnedRing(sliver, {0, 0}).size(), 4U);
}

// Halving takes time that grows with the square of what lies between two points that are kept anyway.
TEST(ThinnedPoints, AMillionPointsAreNoMatter) {
  Points zigzag;
  for (int i = 0; i < 1'000'000; ++i) zigzag.push_back({i % 2, i});
  const Points thinned = thinnedLine(zigzag, {0, 0});
  EXPECT_EQ(thinned.front(), zigzag.front());
  EXPECT_EQ(thinned.back(), zigzag.back());
  EXPECT_LT(thinned.size(), zigzag.size());
}

}  // namespace
}  // namespace motor
