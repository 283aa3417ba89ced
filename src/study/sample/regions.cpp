#include "study/sample/regions.h"

#include <cmath>
#include <functional>
#include <queue>
#include <tuple>

namespace study {

std::vector<int> growRegions(Random& random, const std::vector<Point>& sites,
                             const std::vector<std::vector<int>>& neighbours, const std::vector<int>& seeds,
                             double roughness) {
  constexpr int kNone = -1;
  std::vector<int> partOf(sites.size(), kNone);
  using Step = std::tuple<double, int, int>;  // length so far, cell, part
  std::priority_queue<Step, std::vector<Step>, std::greater<>> frontier;
  for (std::size_t part = 0; part < seeds.size(); ++part) frontier.emplace(0, seeds[part], static_cast<int>(part));
  while (!frontier.empty()) {
    const auto [length, cell, part] = frontier.top();
    frontier.pop();
    int& owner = partOf[static_cast<std::size_t>(cell)];
    if (owner != kNone) continue;
    owner = part;
    for (const int next : neighbours[static_cast<std::size_t>(cell)]) {
      if (partOf[static_cast<std::size_t>(next)] != kNone) continue;
      const double step =
          std::sqrt(squaredDistance(sites[static_cast<std::size_t>(cell)], sites[static_cast<std::size_t>(next)]));
      frontier.emplace(length + step * (1 + roughness * random.unit()), next, part);
    }
  }
  return partOf;
}

}  // namespace study
