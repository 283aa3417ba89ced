#pragma once

#include <QPainterPath>

#include "motor/drawing/map_view.h"
#include "motor/drawing/simplified_paths.h"

namespace motor {

// The outlines of objects of the map's coordinate system, for what is painted above the map: a region's rings, a line,
// a ring around a point, a frame around a text.
class ObjectOutlines {
 public:
  // In pixels of the view.
  [[nodiscard]] QPainterPath of(const ObjectPtr& object, const MapView& view, double devicePixelRatio);
  // Forgets what belongs to objects that are gone.
  void dropUnused() { paths_.dropUnused(); }

 private:
  SimplifiedPaths paths_;
};

}  // namespace motor
