#include "study/generator/coverage.h"

#include <algorithm>
#include <map>
#include <span>
#include <stdexcept>
#include <utility>

namespace study::generator {

namespace {

// A border walked so that the cell lies on its left.
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
  throw std::logic_error("a border of the region ends in the open");
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
void closeLoops(Walk& first, const Departures& departures, Area& rings) {
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

Area outline(std::vector<Walk>& walks) {
  Departures departures;
  for (Walk& walk : walks) departures[{walk.start().x, walk.start().y}].push_back(&walk);
  Area rings;
  for (Walk& walk : walks) {
    if (!walk.used) closeLoops(walk, departures, rings);
  }
  std::stable_partition(rings.begin(), rings.end(), [](const Ring& ring) { return squareMetres(ring) > 0; });
  return rings;
}

}  // namespace

std::vector<Area> outlines(const std::vector<Border>& borders, std::size_t cells) {
  std::vector<std::vector<Walk>> walks(cells);
  for (const Border& border : borders) {
    if (border.left != kOutside) walks[border.left].push_back({&border.path, false});
    if (border.right != kOutside) walks[border.right].push_back({&border.path, true});
  }
  std::vector<Area> areas;
  for (std::vector<Walk>& around : walks) areas.push_back(outline(around));
  return areas;
}

}  // namespace study::generator
