#pragma once

#include <cstddef>
#include <vector>

// Points and rings of the projected plane, in metres.
namespace study {

struct Point {
  double x = 0;
  double y = 0;
  bool operator==(const Point&) const = default;
};

// A closed line without its repeated last point. Outer rings run counter-clockwise, holes clockwise.
using Ring = std::vector<Point>;

[[nodiscard]] inline Point between(Point a, Point b, double share) {
  return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share};
}

[[nodiscard]] inline double squaredDistance(Point a, Point b) {
  return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
}

// The index of the nearest of `points` (which are not empty).
[[nodiscard]] inline std::size_t nearest(const std::vector<Point>& points, Point p) {
  std::size_t best = 0;
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (squaredDistance(points[i], p) < squaredDistance(points[best], p)) best = i;
  }
  return best;
}

// Square metres by the shoelace formula; negative for a hole.
[[nodiscard]] double area(const Ring& ring);
[[nodiscard]] double area(const std::vector<Ring>& rings);

struct Extent {
  double minX = 0;
  double minY = 0;
  double maxX = 0;
  double maxY = 0;

  [[nodiscard]] Point centre() const { return {(minX + maxX) / 2, (minY + maxY) / 2}; }
  [[nodiscard]] double width() const { return maxX - minX; }
  [[nodiscard]] double height() const { return maxY - minY; }
};

[[nodiscard]] Extent extent(const std::vector<Ring>& rings);

}  // namespace study
