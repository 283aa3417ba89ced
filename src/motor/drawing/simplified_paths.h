#pragma once

#include <cstdint>
#include <list>
#include <memory>
#include <unordered_map>
#include <vector>

#include "motor/drawing/thinned_points.h"
#include "motor/tables/geometry.h"

namespace motor {

// An object's points on the grid of one zoom level, without those that nobody sees. The grid is the same for all
// objects, so that neighbours which share points still share them.
struct SimplifiedShape {
  double step = 1;  // map units between grid lines
  Point origin;     // of the grid points, in map units
  std::vector<GridPoint> points;
  std::vector<std::uint32_t> partEnds;  // index behind each part's last point

  [[nodiscard]] Point at(std::size_t i) const { return {origin.x + points[i].x * step, origin.y + points[i].y * step}; }
};

// The level whose grid is between a quarter and half of a device pixel, where numbers go that far.
[[nodiscard]] int simplificationLevel(double unitsPerDevicePixel);

// The shape of an object on a level's grid (2 to the power `level` map units wide, wider where its coordinates need
// it). Parts that shrink to one point and points that are nowhere (not finite, or farther than any map reaches) are
// left out.
[[nodiscard]] SimplifiedShape simplify(const MapObject& object, int level);

// Keeps the simplified shapes of the zoom levels that were used last.
class SimplifiedPaths {
 public:
  // Keeps as many levels, one at least.
  explicit SimplifiedPaths(std::size_t keptLevels) : keptLevels_(keptLevels) {}

  // The shape stays as long as its level is among those kept.
  [[nodiscard]] const SimplifiedShape& of(const ObjectPtr& object, int level);
  // Forgets the shapes of objects that are gone.
  void dropUnused();
  // How many shapes were made so far.
  [[nodiscard]] std::size_t madeCount() const { return made_; }

 private:
  struct Entry {
    std::weak_ptr<const MapObject> object;  // tells whether the address is still that object's
    SimplifiedShape shape;
  };
  struct Level {
    int number = 0;
    std::unordered_map<const MapObject*, Entry> shapes;
  };
  Level& useLevel(int number);

  std::size_t keptLevels_;
  std::list<Level> levels_;  // the last used first
  std::size_t made_ = 0;
};

}  // namespace motor
