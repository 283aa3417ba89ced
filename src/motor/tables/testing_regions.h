#pragma once

#include <cmath>
#include <cstdint>
#include <numbers>
#include <vector>

#include "motor/tables/geometry.h"

namespace motor {

// Shapes for tests.
using Ring = std::vector<Point>;

inline MapObject objectOf(MapObject::Kind kind, const std::vector<Ring>& parts) {
  MapObject result;
  result.kind = kind;
  for (const Ring& part : parts) {
    result.parts.push_back(static_cast<std::uint32_t>(result.points.size()));
    result.points.insert(result.points.end(), part.begin(), part.end());
  }
  for (const Point& p : result.points) result.bounds.add(p);
  return result;
}

inline MapObject regionOf(const std::vector<Ring>& rings) { return objectOf(MapObject::Kind::region, rings); }

// A ring around `centre` whose distance from it goes up and down `waves` times.
inline Ring star(Point centre, double radius, int points, double waves) {
  Ring ring;
  for (int i = 0; i < points; ++i) {
    const double angle = 2 * std::numbers::pi * i / points;
    const double at = radius * (1 + 0.3 * std::sin(waves * angle));
    ring.push_back({centre.x + at * std::cos(angle), centre.y + at * std::sin(angle)});
  }
  ring.push_back(ring.front());
  return ring;
}

}  // namespace motor
