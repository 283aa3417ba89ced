#include "study/generator/voronoi.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "study/generator/meander.h"
#include "study/generator/random.h"
#include "study/generator/sites.h"

namespace study::generator {
namespace {

constexpr std::size_t kInside = 9;

// Nine sites in a square net, the centre moved a little, and a ring of others around them.
std::vector<Point> netOfSites(double moved) {
  std::vector<Point> inside;
  std::vector<Point> around;
  for (int x = -2; x <= 2; ++x) {
    for (int y = -2; y <= 2; ++y) {
      const bool isInside = std::abs(x) < 2 && std::abs(y) < 2;
      (isInside ? inside : around).push_back({1'000.0 * x + (x == 0 && y == 0 ? moved : 0), 1'000.0 * y});
    }
  }
  inside.insert(inside.end(), around.begin(), around.end());
  return inside;
}

TEST(GeneratorVoronoi, EdgesLieBetweenTheirSites) {
  const std::vector<Point> sites = netOfSites(300);
  const std::vector<VoronoiEdge> edges = voronoiEdges(sites, kInside, 0);
  EXPECT_GE(edges.size(), 24u);
  for (const VoronoiEdge& edge : edges) {
    EXPECT_LT(std::min(edge.left, edge.right), kInside);
    for (const Point& end : {edge.start, edge.end}) {
      EXPECT_NEAR(distance(end, sites[edge.left]), distance(end, sites[edge.right]), 2);
    }
    EXPECT_GT(turn(edge.start, edge.end, sites[edge.left]), 0);
    EXPECT_GT(turn(edge.end, edge.start, sites[edge.right]), 0);
  }
}

TEST(GeneratorVoronoi, ShortEdgesBecomePoints) {
  // In a square net four cells meet in every corner; nearly so when one site is moved by a metre or two.
  for (const double moved : {0.0, 2.0}) {
    const std::vector<VoronoiEdge> edges = voronoiEdges(netOfSites(moved), kInside, 50);
    EXPECT_EQ(edges.size(), 24u) << moved;
    for (const VoronoiEdge& edge : edges) EXPECT_GE(distance(edge.start, edge.end), 50);
  }
}

TEST(GeneratorVoronoi, BordersOfACellCloseAroundIt) {
  Random random(3);
  std::vector<Point> sites;
  for (int i = 0; i < 3'000; ++i) {
    sites.push_back(onWholeMetres({random.between(-9'000, 9'000), random.between(-9'000, 9'000)}));
  }
  makeDistinct(sites);
  // Those in the middle first.
  const auto outer = std::partition(sites.begin(), sites.end(),
                                    [](const Point& p) { return std::max(std::abs(p.x), std::abs(p.y)) < 6'000; });
  const auto inside = static_cast<std::size_t>(outer - sites.begin());
  std::vector<std::map<std::pair<double, double>, int>> ends(inside);
  std::vector<double> areas(inside, 0);
  for (const VoronoiEdge& edge : voronoiEdges(sites, inside, 20)) {
    const auto walk = [&](std::size_t cell, Point start, Point end) {
      if (cell >= inside) return;
      ++ends[cell][{start.x, start.y}];
      --ends[cell][{end.x, end.y}];
      EXPECT_GT(turn(sites[cell], start, end), 0);
      areas[cell] += turn(sites[cell], start, end);
    };
    walk(edge.left, edge.start, edge.end);
    walk(edge.right, edge.end, edge.start);
  }
  for (std::size_t cell = 0; cell < inside; ++cell) {
    EXPECT_GT(areas[cell], 0);
    for (const auto& [end, balance] : ends[cell]) EXPECT_EQ(balance, 0);
  }
}

TEST(GeneratorMeander, IsTheSameFromBothSides) {
  const EdgeRoom there{{1'000, 2'000}, {19'000, 5'000}, {9'000, 12'000}, {11'000, -5'000}};
  const EdgeRoom back{there.end, there.start, there.rightSite, there.leftSite};
  const std::vector<Point> line = meander(there, 4, 1);
  std::vector<Point> reversed = meander(back, 4, 1);
  std::reverse(reversed.begin(), reversed.end());
  EXPECT_EQ(line, reversed);
  EXPECT_EQ(line.front(), there.start);
  EXPECT_EQ(line.back(), there.end);
  EXPECT_EQ(line.size(), 17u);
  EXPECT_NE(line, meander(there, 4, 2));
}

TEST(GeneratorMeander, KeepsBetweenTheSites) {
  const EdgeRoom room{{0, 0}, {20'000, 0}, {9'000, 8'000}, {9'000, -8'000}};
  for (std::uint64_t seed = 0; seed < 50; ++seed) {
    double furthest = 0;
    for (const Point& p : meander(room, 4, seed)) {
      const double allowed = p.x < 9'000 ? p.x * 8 / 9 : (20'000 - p.x) * 8 / 11;
      EXPECT_LE(std::abs(p.y), allowed + 0.01);
      furthest = std::max(furthest, std::abs(p.y));
    }
    EXPECT_GT(furthest, 100);
  }
}

TEST(GeneratorMeander, HalvingsBringPointsAsNearAsAskedFor) {
  EXPECT_EQ(halvings(1'000, 1'000), 0);
  EXPECT_EQ(halvings(1'400, 1'000), 0);
  EXPECT_EQ(halvings(1'500, 1'000), 1);
  EXPECT_EQ(halvings(8'000, 1'000), 3);
}

}  // namespace
}  // namespace study::generator
