#pragma once

#include <cstdint>
#include <vector>

#include "study/plane.h"

namespace study {

// A winding line in place of the straight edge between two cells, determined by the edge's ends and the seed alone. It
// stays inside the quadrilateral of the edge and the two sites; as those of different edges do not overlap, no two
// lines cross. Method: recursive subdivision of quadrilaterals (A. Patel, "Noisy Edges", 2010). Points in centimetres.
[[nodiscard]] std::vector<Point> meander(Point start, Point end, Point leftSite, Point rightSite, std::uint64_t seed);

}  // namespace study
