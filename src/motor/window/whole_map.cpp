#include "motor/window/whole_map.h"

namespace motor {

void showWholeMap(MapWindow& window) {
  constexpr double kMargin = 0.02;
  Map& map = window.map();
  map.showBox(map.fullExtent(), kMargin);
  window.changed();
}

}  // namespace motor
