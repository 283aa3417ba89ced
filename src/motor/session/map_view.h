#pragma once

#include <string>

#include "motor/map/map.h"

namespace motor {

// Shows the objects of all displayed layers, or of one layer, with a margin around them. Without objects nothing
// changes.
void showEntire(Map& map);
void showEntire(Map& map, const Layer& layer);
// Whether the map shows what showEntire would, give or take a pixel or so.
[[nodiscard]] bool isShownEntire(const Map& map);
// How wide the map is (metres on the ground) when it shows the objects of all displayed layers; 0 without objects.
[[nodiscard]] double entireZoom(const Map& map);

// How many of a paper unit ("in", "cm", "mm", "pt", "pica", ...) make an inch, without regard to case. Throws
// EngineError for another word.
[[nodiscard]] double paperUnitsPerInch(const std::string& unit);

// Windows have this many pixels to the inch of paper.
inline constexpr double kPixelsPerInch = 96;

// A length on paper as pixels of a window, at most what a screen could have. `unit` as in paperUnitsPerInch.
[[nodiscard]] int paperPixels(double length, const std::string& unit);

}  // namespace motor
