#pragma once

#include <cstdint>
#include <vector>

#include "study/generator/plane.h"

namespace study::generator {

// The straight edge between two cells, with the sites of both.
struct EdgeRoom {
  Point start;
  Point end;
  Point leftSite;
  Point rightSite;
};

// How many times an edge of this length is halved so that its points stand about `step` apart.
[[nodiscard]] int halvings(double length, double step);

// A winding line of 2^depth steps in place of the edge, determined by the edge's ends and the seed alone. It stays
// inside the quadrilateral of the edge and the two sites; as those of different edges do not overlap, no two lines
// cross. Method: recursive subdivision of quadrilaterals (A. Patel, "Noisy Edges", 2010). Points on centimetres.
[[nodiscard]] std::vector<Point> meander(EdgeRoom edge, int depth, std::uint64_t seed);

}  // namespace study::generator
