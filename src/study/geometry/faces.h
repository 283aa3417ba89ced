#pragma once

#include <cstddef>
#include <vector>

#include "study/geometry/geos.h"

// The smallest pieces that the lines of all zones cut the plane into.
namespace study {

struct Face {
  Geos::Geometry polygon;
  std::vector<std::size_t> owners;  // the zones that it lies in, ascending
  Point inside;
  bool sliver = false;
};

// The faces of zones, cut on the grid.
[[nodiscard]] std::vector<Face> facesOf(const Geos& geos, const std::vector<Polygons>& zones);

// Gives each sliver without an owner to the zone with which it shares the longest border.
void closeGaps(const Geos& geos, std::vector<Face>& faces);

}  // namespace study
