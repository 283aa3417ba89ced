#include "study/generator/regions.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <queue>
#include <tuple>

#include "study/generator/point_grid.h"

namespace study::generator {

std::vector<std::size_t> seedCells(const std::vector<Point>& cells, const std::vector<Point>& points) {
  PointGrid free(cells);
  std::vector<std::size_t> seeds;
  for (const Point& p : points) {
    seeds.push_back(free.nearest(p).value());
    free.remove(seeds.back(), cells[seeds.back()]);
  }
  return seeds;
}

std::vector<std::vector<std::size_t>> neighbours(const std::vector<std::pair<std::size_t, std::size_t>>& touching,
                                                 std::size_t cells) {
  std::vector<std::vector<std::size_t>> result(cells);
  for (const auto& [a, b] : touching) {
    result[a].push_back(b);
    result[b].push_back(a);
  }
  for (std::vector<std::size_t>& others : result) {
    std::sort(others.begin(), others.end());
    others.erase(std::unique(others.begin(), others.end()), others.end());
  }
  return result;
}

std::vector<std::size_t> growRegions(Random& random, const std::vector<Point>& sites,
                                     const std::vector<std::vector<std::size_t>>& neighbours,
                                     const std::vector<std::size_t>& seeds, double roughness) {
  constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();
  std::vector<std::size_t> partOf(sites.size(), kNone);
  using Step = std::tuple<double, std::size_t, std::size_t>;  // length so far, cell, part
  std::priority_queue<Step, std::vector<Step>, std::greater<>> frontier;
  for (std::size_t part = 0; part < seeds.size(); ++part) frontier.emplace(0, seeds[part], part);
  while (!frontier.empty()) {
    const auto [length, cell, part] = frontier.top();
    frontier.pop();
    if (partOf[cell] != kNone) continue;
    partOf[cell] = part;
    for (const std::size_t next : neighbours[cell]) {
      if (partOf[next] != kNone) continue;
      const double step = distance(sites[cell], sites[next]);
      frontier.emplace(length + step * (1 + roughness * random.unit()), next, part);
    }
  }
  return partOf;
}

}  // namespace study::generator
