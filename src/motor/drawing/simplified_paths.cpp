#include "motor/drawing/simplified_paths.h"

#include <algorithm>
#include <cmath>

namespace motor {

namespace {

constexpr std::size_t kKeptLevels = 3;
constexpr int kGridBits = 30;        // grid coordinates stay below two to this power
constexpr int kNumberBits = 52;      // of a number's mantissa
constexpr double kFarthest = 1e100;  // units; what lies farther away is no place
constexpr int kLeastLevel = -500;
constexpr int kMostLevel = 500;

using GridPoint = SimplifiedShape::GridPoint;

// Whether b lies on the way straight on from a to c.
bool isStraight(GridPoint a, GridPoint b, GridPoint c) {
  const std::int64_t ux = std::int64_t{b.x} - a.x;
  const std::int64_t uy = std::int64_t{b.y} - a.y;
  const std::int64_t vx = std::int64_t{c.x} - b.x;
  const std::int64_t vy = std::int64_t{c.y} - b.y;
  return ux * vy == uy * vx && ux * vx + uy * vy > 0;
}

void append(std::vector<GridPoint>& points, std::size_t partBegin, GridPoint next) {
  if (points.size() > partBegin && points.back() == next) return;
  if (points.size() >= partBegin + 2 && isStraight(points[points.size() - 2], points.back(), next)) points.pop_back();
  points.push_back(next);
}

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
  for (std::size_t part = 0; part < object.partCount(); ++part) {
    const std::size_t begin = shape.points.size();
    for (std::size_t i = object.parts[part]; i < object.partEnd(part); ++i) {
      const Point p = object.points[i];
      if (!isOnEarth(p)) continue;
      append(shape.points, begin,
             {static_cast<std::int32_t>(std::nearbyint(p.x / shape.step) - originX),
              static_cast<std::int32_t>(std::nearbyint(p.y / shape.step) - originY)});
    }
    if (shape.points.size() < begin + 2) {
      shape.points.resize(begin);
    } else {
      shape.partEnds.push_back(static_cast<std::uint32_t>(shape.points.size()));
    }
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
    if (levels_.size() > kKeptLevels) levels_.pop_back();
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
