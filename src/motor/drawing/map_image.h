#pragma once

#include <QImage>

#include "motor/map/map.h"

namespace motor {

// A map on white, `size` logical pixels large, each of `devicePixelRatio` device pixels.
[[nodiscard]] QImage renderMap(const Map& map, QSize size, double devicePixelRatio);

}  // namespace motor
