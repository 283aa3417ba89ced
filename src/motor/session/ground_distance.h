#pragma once

#include <memory>

#include "motor/session/geodesic.h"
#include "motor/tables/coordinate_system.h"

namespace motor {

// Distances between points of a coordinate system as they are on the ground: over the system's own ellipsoid, or
// straight on a plain grid.
class GroundDistance {
 public:
  explicit GroundDistance(const CoordinateSystem& system);

  // Metres; not a number where a point has no place on the earth.
  [[nodiscard]] double operator()(Point from, Point to) const;
  // How far from the grid's north (degrees, clockwise positive) true north lies at a point; 0 on a plain grid and where
  // there is none.
  [[nodiscard]] double northAt(Point p) const;
  [[nodiscard]] const Ellipsoid& ellipsoid() const { return ellipsoid_; }

 private:
  CoordinateSystem system_;
  Ellipsoid ellipsoid_;
  CoordinateSystem longLat_;                         // on the same ellipsoid
  std::shared_ptr<const Transformation> toLongLat_;  // null on a plain grid
};

}  // namespace motor
