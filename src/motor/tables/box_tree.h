#pragma once

#include <cstdint>
#include <vector>

#include "motor/tables/geometry.h"

namespace motor {

// A packed R-tree over boxes that never change (sort-tile-recursive, Leutenegger et al. 1997). Items are the indexes of
// the boxes it was built from; empty boxes are never found.
class BoxTree {
 public:
  BoxTree() = default;
  explicit BoxTree(const std::vector<Box>& boxes);

  // The items whose boxes meet `area` (touching counts), ascending.
  [[nodiscard]] std::vector<std::uint32_t> find(const Box& area) const;

 private:
  struct Node {
    Box box;
    std::uint32_t first = 0;  // of the node's children in nodes_, or of its items in items_
    std::uint32_t count = 0;
    bool leaf = true;
  };

  // Makes the nodes over items or nodes [begin, end).
  void packLevel(std::size_t begin, std::size_t end, bool leaves);

  std::vector<Box> boxes_;  // in the order of items_
  std::vector<std::uint32_t> items_;
  std::vector<Node> nodes_;  // level by level, the root last
};

}  // namespace motor
