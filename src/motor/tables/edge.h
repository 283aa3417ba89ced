#pragma once

#include <algorithm>

#include "motor/tables/geometry.h"

namespace motor {

// A straight piece of a line or of a region's border.
struct Edge {
  Point a;
  Point b;

  // Twice the signed area of the triangle with `p`: on which side of the line through the edge it lies, 0 on it.
  [[nodiscard]] double sideOf(Point p) const { return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x); }
  // Whether a point lies on the edge itself.
  [[nodiscard]] bool holds(Point p) const {
    return sideOf(p) == 0 && p.x >= std::min(a.x, b.x) && p.x <= std::max(a.x, b.x) && p.y >= std::min(a.y, b.y) &&
           p.y <= std::max(a.y, b.y);
  }
  // The square of a point's distance from the edge itself.
  [[nodiscard]] double squaredDistanceTo(Point p) const {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double px = p.x - a.x;
    const double py = p.y - a.y;
    const double squaredLength = dx * dx + dy * dy;
    const double along = squaredLength > 0 ? std::clamp((px * dx + py * dy) / squaredLength, 0.0, 1.0) : 0;
    const double x = px - along * dx;
    const double y = py - along * dy;
    return x * x + y * y;
  }
  // Whether the horizontal line through `y` crosses the edge; its lower end belongs to it, its upper end does not.
  [[nodiscard]] bool crosses(double y) const { return (a.y > y) != (b.y > y); }
  // Where that line crosses it.
  [[nodiscard]] double crossingX(double y) const { return a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x); }
};

// Calls `visit` with each edge of a line or region, part after part.
template <typename Visit>
void forEachEdge(const MapObject& object, const Visit& visit) {
  for (std::size_t part = 0; part < object.partCount(); ++part) {
    for (std::size_t i = object.parts[part]; i + 1 < object.partEnd(part); ++i) {
      visit(Edge{object.points[i], object.points[i + 1]});
    }
  }
}

// On which side of a region's edges a point lies, by the even-odd rule: to be told each edge that its y meets once, and
// any others.
class PointSide {
 public:
  explicit PointSide(Point p) : p_(p) {}

  // Most edges lie above the point or below it, and tell nothing.
  void pass(const Edge& edge) {
    const bool crosses = edge.crosses(p_.y);
    if (!crosses && edge.a.y != p_.y && edge.b.y != p_.y) return;
    if (edge.holds(p_)) onBorder_ = true;
    if (crosses && p_.x < edge.crossingX(p_.y)) inside_ = !inside_;
  }
  [[nodiscard]] bool isOnBorder() const { return onBorder_; }
  // Inside or on the border.
  [[nodiscard]] bool isCovered() const { return onBorder_ || inside_; }

 private:
  Point p_;
  bool onBorder_ = false;
  bool inside_ = false;
};

}  // namespace motor
