#pragma once

#include <cstddef>
#include <limits>
#include <vector>

#include "study/generator/plane.h"

namespace study::generator {

// What lies beyond the region's outline.
inline constexpr std::size_t kOutside = std::numeric_limits<std::size_t>::max();

// A piece of border between two cells, from one junction to the next. Neighbours share it, so that their outlines agree
// point for point.
struct Border {
  std::vector<Point> path;
  std::size_t left = kOutside;
  std::size_t right = kOutside;
};

// The outline of each cell of a division without gaps or overlaps: its outer ring counter-clockwise, then its holes
// clockwise. Every cell is connected. Throws std::logic_error where a border ends in the open.
[[nodiscard]] std::vector<Area> outlines(const std::vector<Border>& borders, std::size_t cells);

}  // namespace study::generator
