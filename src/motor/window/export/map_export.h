#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

#include "motor/map/map.h"

namespace motor {

// A map with its scale bar on white, `size` logical pixels of 1/96 inch large, for other programs.

// In pixels, twice as fine as a screen's.
[[nodiscard]] QImage mapAsImage(const Map& map, QSize size);
[[nodiscard]] QByteArray mapAsPng(const Map& map, QSize size);
// As shapes and letters.
[[nodiscard]] QByteArray mapAsSvg(const Map& map, QSize size);
[[nodiscard]] QByteArray mapAsPdf(const Map& map, QSize size);

}  // namespace motor
