#pragma once

#include <QPainter>
#include <span>

#include "motor/drawing/chart_theme.h"

namespace motor {

// Paints one chart of a theme: the pie or the bars of some values, placed around `at` in logical pixels, no wider (a
// pie) or higher (a bar) than `mostSize`. Values that are not finite, and negative ones in pies and stacked bars, are
// left out.
void paintChart(QPainter& painter, const ChartTheme& theme, std::span<const double> values, QPointF at, double mostSize,
                double devicePixelRatio);

}  // namespace motor
