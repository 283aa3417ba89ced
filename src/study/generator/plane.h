#pragma once

#include <cmath>

#include "study/model/area.h"

// Arithmetic of points. Only + - * / and square roots, which are the same on every machine: where a point comes to lie
// never depends on a mathematics library.
namespace study::generator {

[[nodiscard]] inline Point between(Point a, Point b, double share) {
  return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share};
}

[[nodiscard]] inline double squaredDistance(Point a, Point b) {
  return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
}

[[nodiscard]] inline double distance(Point a, Point b) { return std::sqrt(squaredDistance(a, b)); }

// Twice the area of the triangle; positive when a, b, c run counter-clockwise.
[[nodiscard]] inline double turn(Point a, Point b, Point c) {
  return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

[[nodiscard]] inline Point onWholeMetres(Point p) { return {std::round(p.x), std::round(p.y)}; }

[[nodiscard]] inline Point onCentimetres(Point p) { return {std::round(p.x * 100) / 100, std::round(p.y * 100) / 100}; }

}  // namespace study::generator
