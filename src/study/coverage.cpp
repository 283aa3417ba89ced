#include "study/coverage.h"

#include <algorithm>
#include <map>
#include <span>
#include <stdexcept>
#include <utility>

namespace study {

namespace {

// A border walked so that the area lies on its left.
struct Walk {
  const std::vector<Point>* path;
  bool reversed;
  bool used = false;

  [[nodiscard]] Point at(std::size_t i) const { return reversed ? (*path)[path->size() - 1 - i] : (*path)[i]; }
  [[nodiscard]] Point start() const { return at(0); }
  [[nodiscard]] Point end() const { return at(path->size() - 1); }
};

using Departures = std::map<std::pair<double, double>, std::vector<Walk*>>;

// The next unused walk from a point. Which one does not matter where several leave: loops are cut off where they close.
Walk& departure(const Departures& departures, Point from) {
  if (const auto found = departures.find({from.x, from.y}); found != departures.end()) {
    for (Walk* walk : found->second) {
      if (!walk->used) return *walk;
    }
  }
  throw std::logic_error("a border of the coverage ends in the open");
}

Ring ringOf(std::span<Walk* const> walks) {
  Ring ring;
  for (const Walk* walk : walks) {
    for (std::size_t i = 0; i + 1 < walk->path->size(); ++i) ring.push_back(walk->at(i));
  }
  return ring;
}

// Follows the borders from one of them until every loop on the way is closed. A loop that comes back to a junction is a
// ring of its own, so that no ring touches itself.
void closeLoops(Walk& first, const Departures& departures, std::vector<Ring>& rings) {
  std::vector<Walk*> open;
  Walk* next = &first;
  while (next != nullptr) {
    next->used = true;
    open.push_back(next);
    const Point end = next->end();
    const auto loop = std::find_if(open.begin(), open.end(), [&](const Walk* walk) { return walk->start() == end; });
    if (loop != open.end()) {
      rings.push_back(ringOf({loop, open.end()}));
      open.erase(loop, open.end());
    }
    next = open.empty() ? nullptr : &departure(departures, end);
  }
}

}  // namespace

Coverage::Coverage(std::vector<Border> borders, int cellCount) : borders_(std::move(borders)), cellCount_(cellCount) {}

std::vector<Ring> Coverage::merged(const std::function<bool(int)>& isInside) const {
  const auto inside = [&](int cell) { return cell != kOutside && isInside(cell); };
  std::vector<Walk> walks;
  for (const Border& border : borders_) {
    const bool left = inside(border.left);
    if (left != inside(border.right)) walks.push_back({&border.path, !left});
  }
  Departures departures;
  for (Walk& walk : walks) departures[{walk.start().x, walk.start().y}].push_back(&walk);

  std::vector<Ring> rings;
  for (Walk& walk : walks) {
    if (!walk.used) closeLoops(walk, departures, rings);
  }
  return rings;
}

std::vector<Ring> Coverage::outline(int cell) const {
  return merged([cell](int other) { return other == cell; });
}

std::vector<Ring> Coverage::outline() const {
  return merged([](int) { return true; });
}

std::vector<std::vector<int>> Coverage::neighbours() const {
  std::vector<std::vector<int>> result(static_cast<std::size_t>(cellCount_));
  for (const Border& border : borders_) {
    if (border.left == kOutside || border.right == kOutside) continue;
    result[static_cast<std::size_t>(border.left)].push_back(border.right);
    result[static_cast<std::size_t>(border.right)].push_back(border.left);
  }
  for (std::vector<int>& cells : result) {
    std::sort(cells.begin(), cells.end());
    cells.erase(std::unique(cells.begin(), cells.end()), cells.end());
  }
  return result;
}

Coverage Coverage::grouped(const std::vector<int>& groupOf, int groupCount) const {
  const auto group = [&](int cell) { return cell == kOutside ? kOutside : groupOf[static_cast<std::size_t>(cell)]; };
  std::vector<Border> kept;
  for (const Border& border : borders_) {
    const int left = group(border.left);
    const int right = group(border.right);
    if (left != right) kept.push_back({border.path, left, right});
  }
  return {std::move(kept), groupCount};
}

}  // namespace study
