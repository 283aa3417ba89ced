#include "study/sample/voronoi.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "study/sample/meander.h"
#include "study/sample/regions.h"

namespace study {
namespace {

TEST(Voronoi, EdgesLieBetweenTheirSites) {
  const std::vector<Point> sites{{0, 0}, {10'000, 0}, {0, 10'000}, {10'000, 10'000}, {4'000, 5'500}, {-9'000, 4'000}};
  const std::vector<VoronoiEdge> edges = voronoiEdges(sites);
  EXPECT_GE(edges.size(), 8u);
  for (const VoronoiEdge& edge : edges) {
    const Point& left = sites[static_cast<std::size_t>(edge.left)];
    const Point& right = sites[static_cast<std::size_t>(edge.right)];
    for (const Point& end : {edge.start, edge.end}) {
      EXPECT_NEAR(std::sqrt(squaredDistance(end, left)), std::sqrt(squaredDistance(end, right)), 2);
    }
    const double side =
        (edge.end.x - edge.start.x) * (left.y - edge.start.y) - (edge.end.y - edge.start.y) * (left.x - edge.start.x);
    EXPECT_GT(side, 0);
  }
}

TEST(Meander, IsTheSameFromBothSides) {
  const Point a{1'000, 2'000};
  const Point b{19'000, 5'000};
  const Point left{9'000, 12'000};
  const Point right{11'000, -5'000};
  const std::vector<Point> line = meander(a, b, left, right, 1);
  std::vector<Point> back = meander(b, a, right, left, 1);
  std::reverse(back.begin(), back.end());
  EXPECT_EQ(line, back);
  EXPECT_EQ(line.front(), a);
  EXPECT_EQ(line.back(), b);
  EXPECT_GT(line.size(), 10u);
  EXPECT_NE(line, meander(a, b, left, right, 2));
}

TEST(Meander, KeepsBetweenTheSites) {
  const Point a{0, 0};
  const Point b{20'000, 0};
  const Point left{9'000, 8'000};
  const Point right{9'000, -8'000};
  for (std::uint64_t seed = 0; seed < 50; ++seed) {
    for (const Point& p : meander(a, b, left, right, seed)) {
      const double room = p.x < 9'000 ? p.x * 8 / 9 : (20'000 - p.x) * 8 / 11;
      EXPECT_LE(std::abs(p.y), room + 0.01);
    }
  }
}

TEST(Regions, AreConnectedAndHoldTheirSeeds) {
  // A row of nine cells.
  std::vector<Point> sites;
  std::vector<std::vector<int>> neighbours(9);
  for (int i = 0; i < 9; ++i) {
    sites.push_back({i * 10.0, 0});
    if (i > 0) neighbours[static_cast<std::size_t>(i)].push_back(i - 1);
    if (i < 8) neighbours[static_cast<std::size_t>(i)].push_back(i + 1);
  }
  Random random(5);
  EXPECT_EQ(growRegions(random, sites, neighbours, {7, 1}, 0), (std::vector<int>{1, 1, 1, 1, 0, 0, 0, 0, 0}));
  const std::vector<int> rough = growRegions(random, sites, neighbours, {7, 1}, 2);
  EXPECT_EQ(rough[7], 0);
  EXPECT_EQ(rough[1], 1);
  EXPECT_TRUE(std::is_sorted(rough.rbegin(), rough.rend()));
}

}  // namespace
}  // namespace study
