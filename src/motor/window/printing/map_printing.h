#pragma once

#include <QPrinter>

#include "motor/window/printing/map_page.h"

namespace motor {

// Prints a map's page on one page of the printer, inside its margins.
void printPage(QPrinter& printer, const MapPage& page);

}  // namespace motor
