#pragma once

#include "motor/tables/geometry.h"

namespace motor {

// An ellipsoid of revolution; a sphere has no flattening.
struct Ellipsoid {
  double semiMajorAxis = 6378137;         // metres
  double flattening = 1 / 298.257223563;  // 0 or more: no pole is farther from the middle than the equator

  bool operator==(const Ellipsoid&) const = default;
};

// The length in metres of the shortest way over an ellipsoid between two points (x longitude, y latitude, degrees).
// The problem as C. F. F. Karney sets it up, "Algorithms for geodesics", Journal of Geodesy 87 (2013); its integrals by
// quadrature and the first azimuth by bisection, so that points on opposite sides of the earth are no exception. Good
// to some nanometres. Not a number when a coordinate is none.
[[nodiscard]] double geodesicMetres(const Ellipsoid& ellipsoid, Point from, Point to);

}  // namespace motor
