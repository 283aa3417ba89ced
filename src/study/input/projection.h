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

// The UTM zone of a point given in a map's coordinate system; none: the point cannot be transformed.
[[nodiscard]] std::optional<int> utmZoneOf(const OGRSpatialReference& system, Point p);

}  // namespace study
