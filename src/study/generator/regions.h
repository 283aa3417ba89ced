#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "study/generator/plane.h"
#include "study/generator/random.h"

namespace study::generator {

// The nearest cell to each point, no cell twice; there are at least as many cells.
[[nodiscard]] std::vector<std::size_t> seedCells(const std::vector<Point>& cells, const std::vector<Point>& points);

// Of each cell, the cells that it shares a border with, ascending; pairs may come twice and in any order.
[[nodiscard]] std::vector<std::vector<std::size_t>> neighbours(
    const std::vector<std::pair<std::size_t, std::size_t>>& touching, std::size_t cells);

// Divides cells among seeds so that every part is connected: each cell goes to the seed that is nearest along paths
// from cell to neighbouring cell, whose steps are lengthened at random by up to `roughness` (0 and up) times. A seed is
// a cell's number and all differ; every cell can be reached. Returns each cell's part.
[[nodiscard]] std::vector<std::size_t> growRegions(Random& random, const std::vector<Point>& sites,
                                                   const std::vector<std::vector<std::size_t>>& neighbours,
                                                   const std::vector<std::size_t>& seeds, double roughness);

}  // namespace study::generator
