#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "study/generator/plane.h"

namespace study::generator {

// Three sites by their indexes, counter-clockwise.
using Triangle = std::array<std::size_t, 3>;

// The triangles whose circumcircles hold no other site, in an order that depends on the sites alone. Sites all differ.
// Throws std::runtime_error when they cannot be made.
[[nodiscard]] std::vector<Triangle> delaunayTriangles(const std::vector<Point>& sites);

}  // namespace study::generator
