#include "study/generator/voronoi.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <utility>

#include "study/generator/delaunay.h"

namespace study::generator {

namespace {

// The centre of the circle through three sites.
Point circumcentre(Point a, Point b, Point c) {
  // Relative to the first, so that whole metres give whole, exact products.
  const Point p{b.x - a.x, b.y - a.y};
  const Point q{c.x - a.x, c.y - a.y};
  const double pp = p.x * p.x + p.y * p.y;
  const double qq = q.x * q.x + q.y * q.y;
  const double twice = 2 * (p.x * q.y - p.y * q.x);
  return {a.x + (q.y * pp - p.y * qq) / twice, a.y + (p.x * qq - q.x * pp) / twice};
}

// Where three or more cells meet: groups of triangles whose centres were drawn together.
class Junctions {
 public:
  Junctions(const std::vector<Point>& sites, const std::vector<Triangle>& triangles) : parent_(triangles.size()) {
    std::iota(parent_.begin(), parent_.end(), std::size_t{0});
    for (const Triangle& t : triangles) sums_.push_back(circumcentre(sites[t[0]], sites[t[1]], sites[t[2]]));
    members_.assign(triangles.size(), 1);
  }

  [[nodiscard]] std::size_t of(std::size_t triangle) const {
    while (parent_[triangle] != triangle) triangle = parent_[triangle];
    return triangle;
  }
  [[nodiscard]] Point at(std::size_t triangle) const {
    const std::size_t junction = of(triangle);
    return onWholeMetres({sums_[junction].x / members_[junction], sums_[junction].y / members_[junction]});
  }
  void drawTogether(std::size_t a, std::size_t b) {
    a = of(a);
    b = of(b);
    if (members_[a] < members_[b]) std::swap(a, b);
    parent_[b] = a;
    sums_[a] = {sums_[a].x + sums_[b].x, sums_[a].y + sums_[b].y};
    members_[a] += members_[b];
  }

 private:
  std::vector<std::size_t> parent_;
  std::vector<Point> sums_;
  std::vector<double> members_;
};

// An edge whose ends are centres of triangles.
struct DualEdge {
  std::size_t start;
  std::size_t end;
  std::size_t left;
  std::size_t right;
};

std::vector<DualEdge> dualEdges(const std::vector<Triangle>& triangles, std::size_t cells) {
  std::map<std::pair<std::size_t, std::size_t>, std::size_t> leftOf;  // by two sites, the triangle left of their line
  for (std::size_t t = 0; t < triangles.size(); ++t) {
    for (std::size_t i = 0; i < 3; ++i) leftOf[{triangles[t][i], triangles[t][(i + 1) % 3]}] = t;
  }
  std::vector<DualEdge> edges;
  for (const auto& [line, triangle] : leftOf) {
    const auto [from, to] = line;
    if (from > to || from >= cells) continue;
    const auto twin = leftOf.find({to, from});
    if (twin != leftOf.end()) edges.push_back({twin->second, triangle, from, to});
  }
  return edges;
}

}  // namespace

std::vector<VoronoiEdge> voronoiEdges(const std::vector<Point>& sites, std::size_t cells, double shortest) {
  const std::vector<Triangle> triangles = delaunayTriangles(sites);
  const std::vector<DualEdge> duals = dualEdges(triangles, cells);
  Junctions junctions(sites, triangles);

  const auto isSound = [&](const DualEdge& edge) {
    const Point start = junctions.at(edge.start);
    const Point end = junctions.at(edge.end);
    return distance(start, end) >= shortest && turn(start, end, sites[edge.left]) > 0 &&
           turn(end, start, sites[edge.right]) > 0;
  };
  for (bool changed = true; changed;) {
    changed = false;
    for (const DualEdge& edge : duals) {
      if (junctions.of(edge.start) == junctions.of(edge.end) || isSound(edge)) continue;
      junctions.drawTogether(edge.start, edge.end);
      changed = true;
    }
  }

  std::vector<VoronoiEdge> edges;
  for (const DualEdge& edge : duals) {
    if (junctions.of(edge.start) == junctions.of(edge.end)) continue;
    edges.push_back({junctions.at(edge.start), junctions.at(edge.end), edge.left, edge.right});
  }
  return edges;
}

}  // namespace study::generator
