#pragma once

#include <vector>

#include "study/plane.h"

namespace study {

// An edge of the Voronoi diagram between the cells of two sites. Seen from start to end, `left` and `right` are the
// sites' indexes.
struct VoronoiEdge {
  Point start;
  Point end;
  int left;
  int right;
};

// All edges between two cells, each once, its ends on whole metres, in an order that depends on the sites alone.
// Throws std::runtime_error when the diagram cannot be made.
[[nodiscard]] std::vector<VoronoiEdge> voronoiEdges(const std::vector<Point>& sites);

}  // namespace study
