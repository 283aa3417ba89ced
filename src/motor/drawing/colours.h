#pragma once

#include <QColor>

#include "motor/language/styles.h"

namespace motor {

// A colour number of the map language (red * 65536 + green * 256 + blue) as the toolkit's colour.
[[nodiscard]] inline QColor toQColor(Colour colour) {
  return QColor::fromRgb((colour >> 16) & 0xFF, (colour >> 8) & 0xFF, colour & 0xFF);
}

}  // namespace motor
