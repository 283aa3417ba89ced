#include "motor/drawing/thinned_points.h"

#include <algorithm>
#include <utility>

#include "motor/tables/edge.h"

namespace motor {

namespace {

constexpr double kTolerance = 0.75;     // grid steps
constexpr std::uint32_t kAnchors = 16;  // one of as many points is kept in any line
constexpr std::size_t kLongest = 1024;  // points between two that are kept, which bounds the work of halving
constexpr std::size_t kFewest = 4;      // points of a ring, the last of them its first again

bool comesBefore(GridPoint a, GridPoint b) { return a.x != b.x ? a.x < b.x : a.y < b.y; }

// One of some points, as if by chance, but the same wherever it is met.
bool isAnchor(GridPoint p, GridPoint origin) {
  const auto x = static_cast<std::uint32_t>(p.x) + static_cast<std::uint32_t>(origin.x);
  const auto y = static_cast<std::uint32_t>(p.y) + static_cast<std::uint32_t>(origin.y);
  std::uint32_t mixed = x * 0x9E3779B1U ^ (y * 0x85EBCA77U + 0x165667B1U);
  mixed ^= mixed >> 15;
  mixed *= 0x2C1B3C6DU;
  return (mixed >> 13) % kAnchors == 0;
}

Point toPoint(GridPoint p) { return {static_cast<double>(p.x), static_cast<double>(p.y)}; }

// Marks the points of a line that are kept.
class Thinning {
 public:
  explicit Thinning(const std::vector<GridPoint>& points) : points_(points), kept_(points.size(), false) {}

  void keep(std::size_t index) { kept_[index] = true; }
  [[nodiscard]] bool isKept(std::size_t index) const { return kept_[index]; }
  // Keeps what is needed of the points between two that are kept.
  void halve(std::size_t first, std::size_t last) {
    open_.emplace_back(first, last);
    while (!open_.empty()) {
      const auto [begin, end] = open_.back();
      open_.pop_back();
      const std::size_t farthest = farthestFrom(begin, end);
      if (farthest == begin) continue;
      keep(farthest);
      open_.emplace_back(begin, farthest);
      open_.emplace_back(farthest, end);
    }
  }

 private:
  // The point between two that is farthest from their line, `begin` where none is far. The same in either direction.
  [[nodiscard]] std::size_t farthestFrom(std::size_t begin, std::size_t end) const {
    const auto [a, b] = std::minmax({points_[begin], points_[end]}, comesBefore);
    const Edge edge{toPoint(a), toPoint(b)};
    std::size_t farthest = begin;
    double most = kTolerance * kTolerance;
    for (std::size_t i = begin + 1; i < end; ++i) {
      const double distance = edge.squaredDistanceTo(toPoint(points_[i]));
      if (distance < most || (distance == most && (farthest == begin || comesBefore(points_[farthest], points_[i]))))
        continue;
      most = distance;
      farthest = i;
    }
    return farthest;
  }

  const std::vector<GridPoint>& points_;
  std::vector<bool> kept_;
  std::vector<std::pair<std::size_t, std::size_t>> open_;
};

}  // namespace

std::vector<GridPoint> thinnedLine(const std::vector<GridPoint>& points, GridPoint origin) {
  if (points.size() < 3) return points;
  Thinning thinning(points);
  thinning.keep(0);
  std::size_t last = 0;
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (i + 1 < points.size() && i - last < kLongest && !isAnchor(points[i], origin)) continue;
    thinning.keep(i);
    thinning.halve(last, i);
    last = i;
  }
  std::vector<GridPoint> result;
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (thinning.isKept(i)) result.push_back(points[i]);
  }
  return result;
}

// Begins anew at a point that neighbours keep as well.
std::vector<GridPoint> thinnedRing(const std::vector<GridPoint>& points, GridPoint origin) {
  if (points.size() <= kFewest) return points;
  auto start = std::find_if(points.begin(), points.end(), [&](GridPoint p) { return isAnchor(p, origin); });
  if (start == points.end()) start = std::min_element(points.begin(), points.end(), comesBefore);
  std::vector<GridPoint> ring(start, points.end());
  ring.insert(ring.end(), points.begin() + 1, start + 1);
  std::vector<GridPoint> result = thinnedLine(ring, origin);
  return result.size() < kFewest ? points : result;
}

}  // namespace motor
