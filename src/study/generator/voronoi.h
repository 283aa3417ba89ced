#pragma once

#include <cstddef>
#include <vector>

#include "study/generator/plane.h"

namespace study::generator {

// An edge of the Voronoi diagram between the cells of two sites. Seen from start to end, `left` and `right` are the
// sites' indexes.
struct VoronoiEdge {
  Point start;
  Point end;
  std::size_t left;
  std::size_t right;
};

// The edges of the cells of the first `cells` sites, each once, by their sites; the sites, all different and on whole
// metres, must reach so far around these that their cells are closed. Ends are on whole metres. Edges shorter than
// `shortest` metres are drawn together to a point, so that more than three cells may meet. The quadrilaterals of an
// edge and its two sites do not overlap. Throws std::runtime_error when the diagram cannot be made.
[[nodiscard]] std::vector<VoronoiEdge> voronoiEdges(const std::vector<Point>& sites, std::size_t cells,
                                                    double shortest);

}  // namespace study::generator
