#include "study/reports/simplified_borders.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <optional>
#include <unordered_map>
#include <utility>

namespace study::reports {

namespace {

struct PointHash {
  std::size_t operator()(const Point& point) const {
    const std::size_t x = std::hash<double>()(point.x);
    return x * 0x9E3779B97F4A7C15 + std::hash<double>()(point.y);
  }
};

bool isBefore(const Point& a, const Point& b) { return a.x != b.x ? a.x < b.x : a.y < b.y; }

// The points next to a point along all borders; a third one makes it a node.
class Neighbours {
 public:
  void add(const Point& point) {
    if (std::find(known_.begin(), known_.begin() + count_, point) != known_.begin() + count_) return;
    if (count_ < 3) known_[static_cast<std::size_t>(count_++)] = point;
  }
  [[nodiscard]] bool areOfNode() const { return count_ > 2; }

 private:
  std::array<Point, 3> known_;
  std::ptrdiff_t count_ = 0;
};

double squaredDistance(const Point& point, const Point& from, const Point& to) {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const double length = dx * dx + dy * dy;
  double t = length > 0 ? ((point.x - from.x) * dx + (point.y - from.y) * dy) / length : 0;
  t = std::clamp(t, 0.0, 1.0);
  const double x = point.x - from.x - t * dx;
  const double y = point.y - from.y - t * dy;
  return x * x + y * y;
}

class Simplifier {
 public:
  Simplifier(const std::vector<Area>& areas, double tolerance) : squaredTolerance_(tolerance * tolerance) {
    for (const Area& area : areas) {
      for (const Ring& ring : area) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
          const Point& next = ring[(i + 1) % ring.size()];
          neighbours_[ring[i]].add(next);
          neighbours_[next].add(ring[i]);
        }
      }
    }
  }

  [[nodiscard]] Area simplified(const Area& area) const {
    Area result;
    for (const Ring& ring : area) {
      Ring simple = simplified(ring);
      if (simple.size() > 2) result.push_back(std::move(simple));
    }
    return result;
  }

 private:
  // Both areas at a border cut it at the same points.
  [[nodiscard]] std::vector<std::size_t> cuts(const Ring& ring) const {
    std::vector<std::size_t> cuts;
    for (std::size_t i = 0; i < ring.size(); ++i) {
      if (neighbours_.at(ring[i]).areOfNode()) cuts.push_back(i);
    }
    if (cuts.size() > 1) return cuts;
    const std::size_t first =
        cuts.empty() ? static_cast<std::size_t>(std::min_element(ring.begin(), ring.end(), isBefore) - ring.begin())
                     : cuts.front();
    const auto isNearer = [&](const Point& a, const Point& b) {
      const double toA = std::hypot(a.x - ring[first].x, a.y - ring[first].y);
      const double toB = std::hypot(b.x - ring[first].x, b.y - ring[first].y);
      return toA != toB ? toA < toB : isBefore(a, b);
    };
    const auto second = static_cast<std::size_t>(std::max_element(ring.begin(), ring.end(), isNearer) - ring.begin());
    return {std::min(first, second), std::max(first, second)};
  }

  [[nodiscard]] Ring simplified(const Ring& ring) const {
    Ring result;
    if (ring.size() < 3) return result;
    const std::vector<std::size_t> at = cuts(ring);
    for (std::size_t i = 0; i < at.size(); ++i) {
      const std::size_t end = i + 1 < at.size() ? at[i + 1] : at.front() + ring.size();
      Ring line;
      for (std::size_t j = at[i]; j <= end; ++j) line.push_back(ring[j % ring.size()]);
      line = simplifiedLine(std::move(line));
      result.insert(result.end(), line.begin(), line.end() - 1);
    }
    return result;
  }

  // The same points whichever way the line runs.
  [[nodiscard]] Ring simplifiedLine(Ring line) const {
    const bool isTurned = isBefore(line.back(), line.front()) ||
                          (line.back() == line.front() && line.size() > 2 && isBefore(line[line.size() - 2], line[1]));
    if (isTurned) std::reverse(line.begin(), line.end());
    std::vector<bool> isKept(line.size());
    isKept.front() = isKept.back() = true;
    std::vector<std::pair<std::size_t, std::size_t>> open{{0, line.size() - 1}};
    while (!open.empty()) {
      const auto [from, to] = open.back();
      open.pop_back();
      const std::optional<std::size_t> kept = farthest(line, from, to);
      if (!kept) continue;
      isKept[*kept] = true;
      open.insert(open.end(), {{from, *kept}, {*kept, to}});
    }
    Ring result;
    for (std::size_t i = 0; i < line.size(); ++i) {
      if (isKept[i]) result.push_back(line[i]);
    }
    if (isTurned) std::reverse(result.begin(), result.end());
    return result;
  }

  // The point between two that is farthest from their connection, if it is beyond the tolerance.
  [[nodiscard]] std::optional<std::size_t> farthest(const Ring& line, std::size_t from, std::size_t to) const {
    double greatest = squaredTolerance_;
    std::optional<std::size_t> found;
    for (std::size_t i = from + 1; i < to; ++i) {
      const double distance = squaredDistance(line[i], line[from], line[to]);
      if (distance <= greatest) continue;
      greatest = distance;
      found = i;
    }
    return found;
  }

  double squaredTolerance_;
  std::unordered_map<Point, Neighbours, PointHash> neighbours_;
};

}  // namespace

std::vector<Area> simplifiedBorders(const std::vector<Area>& areas, double tolerance) {
  const Simplifier simplifier(areas, tolerance);
  std::vector<Area> result;
  result.reserve(areas.size());
  for (const Area& area : areas) result.push_back(simplifier.simplified(area));
  return result;
}

}  // namespace study::reports
