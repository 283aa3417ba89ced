#pragma once

#include <cstddef>
#include <vector>

#include "study/geometry/polygon.h"

namespace study {

// Neighbours that were drawn apart never meet exactly. What lies between two zones, or in both, is taken for such a
// sliver where it is narrower than this on average (twice its area by its outline), in metres: it becomes part of one
// of them. A wider gap stays a hole, a wider overlap is a mistake of the map.
inline constexpr double kSliverWidth = 5;

// The land that two zones have in common, without slivers.
struct Overlap {
  std::size_t first = 0;  // of the zones; less than `second`
  std::size_t second = 0;
  double squareMetres = 0;
  Point at;  // a point well inside it
};

// A region made of its zones. Borders of neighbours agree point for point, those of a province with its zones', and
// those of the region with its provinces'. A zone that is nothing but a sliver has an empty area.
struct Division {
  std::vector<Overlap> overlaps;  // by zones, ascending; with one, the areas are not made
  std::vector<Area> zones;
  std::vector<Area> provinces;
  Area region;
};

// Joins zones, each valid (see `mended`), to the provinces that `provinceOf` gives by zone. The lines of all zones are
// cut where they meet, on the grid; the faces between the cut lines are then handed to their zones. Throws StudyError
// where the geometry library fails.
[[nodiscard]] Division divide(const std::vector<Polygons>& zones, const std::vector<std::size_t>& provinceOf,
                              std::size_t provinces);

}  // namespace study
