#pragma once

#include <QPainterPath>

#include "motor/drawing/map_view.h"

namespace motor {

// The outline of an object of the map's coordinate system, for what is painted above the map, in pixels of the view: a
// region's rings, a line, a ring around a point, a frame around a text.
[[nodiscard]] QPainterPath outlineOf(const ObjectPtr& object, const MapView& view, double devicePixelRatio);

}  // namespace motor
