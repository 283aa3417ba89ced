#pragma once

#include <optional>

#include "motor/map/map.h"

namespace motor {

// Labels that are put, moved and taken away by hand. They are the edited labels of their layers, which is where
// statements find them.

// The topmost object under a point of the map's coordinates that may be labelled: that of a displayed layer whose
// labels are visible at the map's zoom. Layers that are selectable go before the others. An object that a theme shades
// belongs to the theme's base.
[[nodiscard]] std::optional<Hit> labelableAt(const Map& map, Point p);

// Whether an object has a label that was put by hand.
[[nodiscard]] bool hasHandLabel(const Map& map, const Hit& object);

// Labels an object.
void putHandLabel(Map& map, const Hit& object);
// Takes the label of an object away, also one that the layer has put by itself.
void removeLabel(Map& map, const Hit& object);
// The label of an object lies from now on with its middle at a point of the map's coordinates; that of a point object
// lies beside it, as it did beside the object.
void moveLabel(Map& map, const Hit& object, Point anchor);

}  // namespace motor
