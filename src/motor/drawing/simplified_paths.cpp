#include "motor/drawing/simplified_paths.h"

#include <algorithm>
#include <cmath>

namespace motor {

namespace {

constexpr int kGridBits = 30;        // grid coordinates stay below two to this power
constexpr int kNumberBits = 52;      // of a number's mantissa
constexpr double kFarthest = 1e100;  // units; what lies farther away is no place
constexpr int kLeastLevel = -500;
constexpr int kMostLevel = 500;

bool isOnEarth(Point p) { return std::fabs(p.x) <= kFarthest && std::fabs(p.y) <= kFarthest; }

Box boundsOf(const MapObject& object) {
  Box bounds;
  for (const Point& p : object.points) {
    if (isOnEarth(p)) bounds.add(p);
  }
  return bounds;
}

int exponentOf(double size) { return size > 0 ? std::ilogb(size) : kLeastLevel; }

// The finest level from `level` on whose grid coordinates fit and are told apart by a number at that distance from the
// origin.
int fittingLevel(const Box& bounds, int level) {
  const double side = std::max(bounds.maxX - bounds.minX, bounds.maxY - bounds.minY);
  const double farthest =
      std::max({std::fabs(bounds.minX), std::fabs(bounds.maxX), std::fabs(bounds.minY), std::fabs(bounds.maxY)});
  return std::max({level, kLeastLevel, exponentOf(side) + 1 - kGridBits, exponentOf(farthest) - kNumberBits});
}

// A grid's origin, which only has to be told apart from others near by.
GridPoint wrapped(double x, double y) {
  const auto bits = [](double at) { return static_cast<std::int32_t>(static_cast<std::int64_t>(at)); };
  return {bits(x), bits(y)};
}

}  // namespace

int simplificationLevel(double unitsPerDevicePixel) {
  return std::clamp(std::ilogb(unitsPerDevicePixel) - 1, kLeastLevel, kMostLevel);
}

SimplifiedShape simplify(const MapObject& object, int level) {
  SimplifiedShape shape;
  const Box bounds = boundsOf(object);
  if (bounds.isEmpty()) return shape;
  shape.step = std::ldexp(1.0, fittingLevel(bounds, level));
  const double originX = std::floor(bounds.minX / shape.step);
  const double originY = std::floor(bounds.minY / shape.step);
  shape.origin = {originX * shape.step, originY * shape.step};
  const GridPoint gridOrigin = wrapped(originX, originY);
  std::vector<GridPoint> points;
  for (std::size_t part = 0; part < object.partCount(); ++part) {
    points.clear();
    for (std::size_t i = object.parts[part]; i < object.partEnd(part); ++i) {
      const Point p = object.points[i];
      if (!isOnEarth(p)) continue;
      const GridPoint next{static_cast<std::int32_t>(std::nearbyint(p.x / shape.step) - originX),
                           static_cast<std::int32_t>(std::nearbyint(p.y / shape.step) - originY)};
      if (points.empty() || points.back() != next) points.push_back(next);
    }
    if (points.size() < 2) continue;
    const bool isRing = object.kind == MapObject::Kind::region && points.front() == points.back();
    const std::vector<GridPoint> seen = isRing ? thinnedRing(points, gridOrigin) : thinnedLine(points, gridOrigin);
    shape.points.insert(shape.points.end(), seen.begin(), seen.end());
    shape.partEnds.push_back(static_cast<std::uint32_t>(shape.points.size()));
  }
  shape.points.shrink_to_fit();
  return shape;
}

SimplifiedPaths::Level& SimplifiedPaths::useLevel(int number) {
  const auto found =
      std::find_if(levels_.begin(), levels_.end(), [&](const Level& level) { return level.number == number; });
  if (found != levels_.end()) {
    levels_.splice(levels_.begin(), levels_, found);
  } else {
    levels_.push_front({number, {}});
    if (levels_.size() > keptLevels_) levels_.pop_back();
  }
  return levels_.front();
}

void SimplifiedPaths::dropUnused() {
  for (Level& level : levels_) {
    std::erase_if(level.shapes, [](const auto& entry) { return entry.second.object.expired(); });
  }
}

const SimplifiedShape& SimplifiedPaths::of(const ObjectPtr& object, int level) {
  Level& shapes = useLevel(level);
  Entry& entry = shapes.shapes[object.get()];
  if (entry.object.lock() != object) {
    entry = {object, simplify(*object, level)};
    ++made_;
  }
  return entry.shape;
}

}  // namespace motor
