#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>

#include "motor/map/map.h"

namespace motor {

// The legend of a map: the layers that are displayed, from the top down, each with a swatch of its style and its name.

// How much room the legend takes in logical pixels; as much as its longest line needs.
[[nodiscard]] QSize legendSize(const Map& map);

// Paints the legend from the painter's origin on.
void paintLegend(QPainter& painter, const Map& map, double devicePixelRatio);

// The legend on white.
[[nodiscard]] QImage renderLegend(const Map& map, double devicePixelRatio);

}  // namespace motor
