#pragma once

#include <array>
#include <cstddef>
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
  // Calls `visit` with each of them, in any order.
  template <typename Visit>
  void visit(const Box& area, const Visit& visit) const;

 private:
  static constexpr std::size_t kFanOut = 4;
  static constexpr std::size_t kMostLevels = 16;  // of as many boxes as a 32-bit number counts

  struct Node {
    Box box;
    std::uint32_t first = 0;  // of the node's children in nodes_, or of its items in items_
    std::uint32_t count = 0;
    bool leaf = true;
  };

  // Box::intersects for two that are not empty.
  [[nodiscard]] static bool meets(const Box& a, const Box& b) {
    return (a.minX <= b.maxX) & (b.minX <= a.maxX) & (a.minY <= b.maxY) & (b.minY <= a.maxY);
  }
  // Orders items so that each run of kFanOut lies close together: strips by x, inside a strip by y.
  static void sortIntoTiles(std::vector<std::uint32_t>& items, const std::vector<Box>& boxes);
  // Makes the nodes over items or nodes [begin, end).
  void packLevel(std::size_t begin, std::size_t end, bool leaves);

  std::vector<Box> boxes_;  // in the order of items_
  std::vector<std::uint32_t> items_;
  std::vector<Node> nodes_;  // level by level, the root last
};

template <typename Visit>
void BoxTree::visit(const Box& area, const Visit& visit) const {
  std::array<std::uint32_t, kMostLevels * kFanOut> open;  // nodes that meet the area, to be looked into
  std::size_t count = 0;
  if (nodes_.empty() || !nodes_.back().box.intersects(area)) return;
  open[count++] = static_cast<std::uint32_t>(nodes_.size() - 1);
  while (count > 0) {
    const Node& node = nodes_[open[--count]];
    for (std::uint32_t i = node.first; i < node.first + node.count; ++i) {
      if (node.leaf) {
        if (meets(boxes_[i], area)) visit(items_[i]);
      } else if (meets(nodes_[i].box, area)) {
        open[count++] = i;
      }
    }
  }
}

}  // namespace motor
