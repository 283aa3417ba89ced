#pragma once

#include <functional>
#include <vector>

#include "study/plane.h"

namespace study {

// What lies beyond the region's outline.
inline constexpr int kOutside = -1;

// A piece of border between two cells, from one junction to the next. Neighbours share it, so that their outlines agree
// vertex for vertex.
struct Border {
  std::vector<Point> path;
  int left = kOutside;
  int right = kOutside;
};

// A division of the region into numbered cells without gaps or overlaps, made of its borders.
class Coverage {
 public:
  Coverage() = default;
  Coverage(std::vector<Border> borders, int cellCount);

  [[nodiscard]] int cellCount() const { return cellCount_; }

  // The outline of all cells that `isInside` accepts, as one area: outer rings counter-clockwise, holes clockwise.
  [[nodiscard]] std::vector<Ring> merged(const std::function<bool(int cell)>& isInside) const;
  [[nodiscard]] std::vector<Ring> outline(int cell) const;
  [[nodiscard]] std::vector<Ring> outline() const;

  // The cells that share a border with each cell, ascending.
  [[nodiscard]] std::vector<std::vector<int>> neighbours() const;

  // The coarser coverage in which cell c becomes part of cell groupOf[c]; borders inside a group vanish.
  [[nodiscard]] Coverage grouped(const std::vector<int>& groupOf, int groupCount) const;

 private:
  std::vector<Border> borders_;
  int cellCount_ = 0;
};

}  // namespace study
