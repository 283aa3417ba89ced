#include "study/methods/hidden_cells.h"

#include <optional>
#include <utility>

namespace study {

HiddenCells::HiddenCells(std::vector<Axis> axes, std::vector<long> counts, int below)
    : axes_(std::move(axes)), counts_(std::move(counts)), below_(below) {
  if (below <= 0) return;
  hidden_.reserve(counts_.size());
  for (const long count : counts_) hidden_.push_back(isSuppressed(count, below));
  protect();
}

std::size_t HiddenCells::placeOf(const std::vector<std::size_t>& cell) const {
  std::size_t at = 0;
  for (std::size_t axis = 0; axis < axes_.size(); ++axis) at = at * axes_[axis].size + cell[axis];
  return at;
}

bool HiddenCells::isHidden(const std::vector<std::size_t>& cell) const {
  return !hidden_.empty() && hidden_[placeOf(cell)];
}

bool HiddenCells::hide(const std::vector<std::size_t>& cell) {
  const std::size_t at = placeOf(cell);
  if (hidden_.empty() || hidden_[at]) return false;
  hidden_[at] = true;
  return true;
}

void HiddenCells::protect() {
  if (hidden_.empty()) return;
  while (protectAll()) {
  }
}

// Whether anything more was hidden, which may give away something elsewhere.
bool HiddenCells::protectAll() {
  bool changed = false;
  std::size_t step = 1;
  for (std::size_t axis = axes_.size(); axis-- > 0;) {
    changed = protectAxis(axis, step) || changed;
    step *= axes_[axis].size;
  }
  return changed;
}

// `step`: from a cell to its neighbour along the axis.
bool HiddenCells::protectAxis(std::size_t axis, std::size_t step) {
  bool changed = false;
  const std::size_t block = step * axes_[axis].size;
  for (std::size_t start = 0; start < counts_.size(); start += block) {
    for (std::size_t first = start; first < start + step; ++first) {
      for (const AxisSum& sum : axes_[axis].sums) changed = protectSum(sum, first, step) || changed;
    }
  }
  return changed;
}

bool HiddenCells::protectSum(const AxisSum& sum, std::size_t first, std::size_t step) {
  bool changed = false;
  while (givesAway(sum, first, step)) {
    std::optional<std::size_t> smallest;
    for (const std::size_t part : sum.parts) {
      const std::size_t cell = first + part * step;
      if (hidden_[cell] || counts_[cell] == 0) continue;
      if (!smallest || counts_[cell] < counts_[*smallest]) smallest = cell;
    }
    const std::size_t next = smallest.value_or(first + sum.total * step);
    if (hidden_[next]) break;  // nothing is left to hide
    hidden_[next] = true;
    changed = true;
  }
  return changed;
}

bool HiddenCells::givesAway(const AxisSum& sum, std::size_t first, std::size_t step) const {
  std::size_t parts = 0;
  long together = 0;
  for (const std::size_t part : sum.parts) {
    const std::size_t cell = first + part * step;
    if (!hidden_[cell]) continue;
    ++parts;
    together += counts_[cell];
  }
  if (hidden_[first + sum.total * step]) return parts == 0;
  return parts == 1 || (parts > 1 && together < below_);
}

}  // namespace study
