#pragma once

#include "motor/session/map_window.h"

namespace motor {

// Moves and zooms a map window until all of its displayed layers are seen, with two percent to spare on each side.
void showWholeMap(MapWindow& window);

}  // namespace motor
