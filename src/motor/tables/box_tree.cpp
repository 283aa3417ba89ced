#include "motor/tables/box_tree.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace motor {
namespace {

double middleX(const Box& box) { return box.minX + box.maxX; }
double middleY(const Box& box) { return box.minY + box.maxY; }

}  // namespace

void BoxTree::sortIntoTiles(std::vector<std::uint32_t>& items, const std::vector<Box>& boxes) {
  const auto groups = static_cast<double>((items.size() + kFanOut - 1) / kFanOut);
  const auto strips = static_cast<std::size_t>(std::ceil(std::sqrt(groups)));
  const std::size_t stripSize = std::max(kFanOut, (items.size() + strips - 1) / std::max<std::size_t>(1, strips));
  std::stable_sort(items.begin(), items.end(),
                   [&](std::uint32_t a, std::uint32_t b) { return middleX(boxes[a]) < middleX(boxes[b]); });
  for (std::size_t begin = 0; begin < items.size(); begin += stripSize) {
    const std::size_t end = std::min(items.size(), begin + stripSize);
    std::stable_sort(items.begin() + static_cast<std::ptrdiff_t>(begin),
                     items.begin() + static_cast<std::ptrdiff_t>(end),
                     [&](std::uint32_t a, std::uint32_t b) { return middleY(boxes[a]) < middleY(boxes[b]); });
  }
}

BoxTree::BoxTree(const std::vector<Box>& boxes) {
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    if (!boxes[i].isEmpty()) items_.push_back(static_cast<std::uint32_t>(i));
  }
  sortIntoTiles(items_, boxes);
  for (const std::uint32_t item : items_) boxes_.push_back(boxes[item]);

  std::size_t levelBegin = 0;
  packLevel(0, boxes_.size(), true);
  while (nodes_.size() - levelBegin > 1) {
    const std::size_t levelEnd = nodes_.size();
    packLevel(levelBegin, levelEnd, false);
    levelBegin = levelEnd;
  }
}

void BoxTree::packLevel(std::size_t begin, std::size_t end, bool leaves) {
  for (std::size_t first = begin; first < end; first += kFanOut) {
    Node node;
    node.first = static_cast<std::uint32_t>(first);
    node.count = static_cast<std::uint32_t>(std::min(kFanOut, end - first));
    node.leaf = leaves;
    for (std::size_t i = first; i < first + node.count; ++i) node.box.add(leaves ? boxes_[i] : nodes_[i].box);
    nodes_.push_back(node);
  }
}

std::vector<std::uint32_t> BoxTree::find(const Box& area) const {
  std::vector<std::uint32_t> found;
  visit(area, [&found](std::uint32_t item) { found.push_back(item); });
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace motor
