#pragma once

#include <ogr_spatialref.h>

#include <memory>
#include <optional>

#include "study/geometry/polygon.h"

class OGRGeometry;

namespace study {

// The way from a map's coordinate system to UTM on WGS 84.
class Projection {
 public:
  // `utmZone` is 1 to 60, negative in the south.
  Projection(const OGRSpatialReference& from, int utmZone);

  // Whether there is a way at all.
  [[nodiscard]] bool exists() const { return transformation_ != nullptr; }

  // Transforms in place; false: some point has no place in the projection.
  [[nodiscard]] bool project(OGRGeometry& geometry) const;

 private:
  struct Destroyer {
    void operator()(OGRCoordinateTransformation* transformation) const;
  };
  std::unique_ptr<OGRCoordinateTransformation, Destroyer> transformation_;
};

// A point given in a map's coordinate system, in degrees of longitude and latitude on WGS 84; none: it cannot be
// transformed.
[[nodiscard]] std::optional<Point> degreesOf(const OGRSpatialReference& system, Point p);

// The UTM zone of a place in degrees.
[[nodiscard]] int utmZoneOf(Point degrees);

// How many degrees of longitude a place lies from the meridian of a UTM zone, 0 to 180.
[[nodiscard]] double degreesFromMeridian(Point degrees, int utmZone);

// Whether a map's coordinate system is used where the place lies, or nearby. A system that does not tell where it is
// used may be used anywhere.
[[nodiscard]] bool isInUse(const OGRSpatialReference& system, Point degrees);

}  // namespace study
