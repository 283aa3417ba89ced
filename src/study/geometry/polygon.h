#pragma once

#include <vector>

#include "study/model/area.h"

namespace study {

// One piece of land with its holes; the rings may run either way round.
struct Polygon {
  Ring outer;
  std::vector<Ring> holes;
};

using Polygons = std::vector<Polygon>;

// The rings as an area keeps them: outer rings counter-clockwise, holes clockwise.
[[nodiscard]] Area areaOf(const Polygons& polygons);

// Maps are drawn and written to the centimetre: equal places have equal coordinates.
inline constexpr double kGrid = 0.01;
[[nodiscard]] Point onGrid(Point p);

// What can be made of polygons as they were drawn: on the grid, without repeated points, and valid (no ring crosses
// itself or another; overlapping pieces are joined). Empty: they enclose nothing, or a coordinate is no number.
[[nodiscard]] Polygons mended(const Polygons& drawn);

}  // namespace study
