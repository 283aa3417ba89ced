#pragma once

#include <cstddef>
#include <vector>

// Points, rings and areas of the projected plane, in metres.
namespace study {

struct Point {
  double x = 0;
  double y = 0;
  bool operator==(const Point&) const = default;
};

// A closed line without its repeated last point. Outer rings run counter-clockwise, holes clockwise.
using Ring = std::vector<Point>;

// All parts of a unit's land, holes included.
using Area = std::vector<Ring>;

// Square metres by the shoelace formula; negative for a hole.
[[nodiscard]] double squareMetres(const Ring& ring);
[[nodiscard]] double squareMetres(const Area& area);

struct Extent {
  double minX = 0;
  double minY = 0;
  double maxX = 0;
  double maxY = 0;

  [[nodiscard]] Point centre() const { return {(minX + maxX) / 2, (minY + maxY) / 2}; }
  [[nodiscard]] double width() const { return maxX - minX; }
  [[nodiscard]] double height() const { return maxY - minY; }
  bool operator==(const Extent&) const = default;
};

// The box around an area with at least one point.
[[nodiscard]] Extent extent(const Area& area);

}  // namespace study
