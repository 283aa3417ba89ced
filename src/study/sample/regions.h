#pragma once

#include <vector>

#include "study/plane.h"
#include "study/random.h"

namespace study {

// Divides cells among seeds so that every part is connected: each cell goes to the seed that is nearest along paths
// from cell to neighbouring cell, whose steps are lengthened at random by up to `roughness` (0 and up) times. A seed is
// a cell's number and all differ. Returns each cell's part.
[[nodiscard]] std::vector<int> growRegions(Random& random, const std::vector<Point>& sites,
                                           const std::vector<std::vector<int>>& neighbours,
                                           const std::vector<int>& seeds, double roughness);

}  // namespace study
