#pragma once

#include <string>
#include <vector>

#include "motor/drawing/themed_maps.h"

// Maps to be looked at: twelve zones with ragged borders, and what lies on them.
namespace motor::sample {

// The zones, with a pale fill, a fine border, names and the values 0.5 to 11.5 strewn over them.
[[nodiscard]] Layer zones();
// The outline of all zones, with one thick border.
[[nodiscard]] Layer outline();
// A map of some layers that shows all zones in a window of that size.
[[nodiscard]] Map map(std::vector<Layer> layers, int pixelWidth, int pixelHeight);
// The zones below a theme, as the statement makes it.
[[nodiscard]] Map themed(const std::string& shade, int pixelWidth, int pixelHeight, const std::string& legend = "");

}  // namespace motor::sample
