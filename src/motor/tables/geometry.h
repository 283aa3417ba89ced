#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "motor/language/styles.h"
#include "motor/language/value.h"

namespace motor {

struct Point {
  double x = 0;
  double y = 0;
  bool operator==(const Point&) const = default;
};

struct Box {
  double minX = 0;
  double minY = 0;
  double maxX = -1;  // an empty box has maxX < minX
  double maxY = -1;

  [[nodiscard]] bool isEmpty() const { return maxX < minX || maxY < minY; }
  [[nodiscard]] bool contains(Point p) const { return p.x >= minX && p.x <= maxX && p.y >= minY && p.y <= maxY; }
  [[nodiscard]] bool intersects(const Box& o) const {
    return !isEmpty() && !o.isEmpty() && minX <= o.maxX && o.minX <= maxX && minY <= o.maxY && o.minY <= maxY;
  }
  void add(Point p);
  void add(const Box& other);
  bool operator==(const Box&) const = default;
};

// One object of a table's row, in the table's coordinate system. The points of all parts stand one after the other;
// parts[i] is the index of part i's first point. A region's parts are closed rings (first point = last point), inside
// by the even-odd rule, so that holes and islands need no order.
struct MapObject {
  enum class Kind : std::uint8_t { point, polyline, region, text };

  Kind kind = Kind::point;
  std::vector<Point> points;
  std::vector<std::uint32_t> parts;
  Box bounds;

  // The object's own style; which of them apply follows from the kind.
  Pen pen;
  Brush brush;
  Symbol symbol;
  Font font;
  std::string text;       // of a text object, whose only point is the lower left corner
  double angle = 0;       // of a text object, degrees counter-clockwise
  double lineHeight = 0;  // of a text object, height of a line in the units of the coordinates
  float lineSpacing = 1;  // of a text object, from line to line, in heights of a line
  TextJustify justify = TextJustify::left;

  [[nodiscard]] std::size_t partCount() const { return parts.size(); }
  [[nodiscard]] std::size_t partEnd(std::size_t part) const {
    return part + 1 < parts.size() ? parts[part + 1] : points.size();
  }
};

// Whether a point lies in a region (even-odd; a point on the border counts as inside). False for other kinds.
[[nodiscard]] bool contains(const MapObject& object, Point p);

// The centroid as the map language gives it: a point on or in the object. Regions: the area centroid of the largest
// polygon's outer ring with its holes when it lies inside, else the middle of the widest inner span of the horizontal
// line through it; lines: the middle of their length; points and texts: their (first) point. NaN for an object without
// points.
[[nodiscard]] Point centroid(const MapObject& object);

// Signed area by the shoelace formula, in square units of the coordinates; positive for counter-clockwise rings.
[[nodiscard]] double ringArea(const Point* points, std::size_t count);

}  // namespace motor
