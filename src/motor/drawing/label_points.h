#pragma once

#include <memory>
#include <unordered_map>

#include "motor/tables/geometry.h"

namespace motor {

// The best points for labels, by object, in the map's coordinates: where a region's outline is farthest. They cost too
// much to be found at every redraw.
class LabelPoints {
 public:
  [[nodiscard]] Point of(const ObjectPtr& region);
  // Forgets the points of objects that are gone.
  void dropUnused();

 private:
  struct Entry {
    std::weak_ptr<const MapObject> object;  // tells whether the address is still that object's
    Point point;
  };
  std::unordered_map<const MapObject*, Entry> points_;
};

}  // namespace motor
