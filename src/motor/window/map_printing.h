#pragma once

#include <QPrinter>

#include "motor/map/map.h"

namespace motor {

// Prints a map on one page with its scale bar, as wide as the page allows; the page is turned to the map's shape.
void printMap(QPrinter& printer, const Map& map);

}  // namespace motor
