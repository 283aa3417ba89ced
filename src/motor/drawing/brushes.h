#pragma once

#include <QBrush>

#include "motor/language/styles.h"

namespace motor {

// Whether a brush fills anything: pattern 1 does not.
[[nodiscard]] bool isVisible(const Brush& brush);

// The toolkit's brush of a pattern, for a painter whose logical pixels are `devicePixelRatio` device pixels: 1 fills
// nothing, 2 is solid, 3-8 and 12-71 are hatches and bitmaps of 8 by 8 logical pixels, drawn for the device's own
// pixels. Other numbers are solid.
[[nodiscard]] QBrush toQBrush(const Brush& brush, double devicePixelRatio);

}  // namespace motor
