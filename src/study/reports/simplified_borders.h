#pragma once

#include <vector>

#include "study/model/area.h"

namespace study::reports {

// Areas with fewer points, for a small picture: no border moves by more than `tolerance` metres. What neighbours share
// point for point they still share, so that neither gaps nor overlaps appear. Rings that shrink to a line are left out.
// Lines are simplified from node to node (where three borders meet) after D. Douglas, T. Peucker, "Algorithms for the
// reduction of the number of points required to represent a digitized line or its caricature", Cartographica 10 (1973),
// 112-122.
[[nodiscard]] std::vector<Area> simplifiedBorders(const std::vector<Area>& areas, double tolerance);

}  // namespace study::reports
