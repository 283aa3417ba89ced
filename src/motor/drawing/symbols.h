#pragma once

#include <QPainter>

#include "motor/language/styles.h"

namespace motor {

// Paints a symbol with its middle at `at`. Sizes are points (at most 240), angles degrees counter-clockwise. A
// character of a font that is not installed, and a picture that is not found, are shown as a disc of the symbol's
// colour and size.
void paintSymbol(QPainter& painter, const Symbol& symbol, QPointF at);

// Paints a symbol at another size, in points, with a thin light edge that sets it off from symbols below it.
void paintSign(QPainter& painter, const Symbol& symbol, double points, QPointF at);

}  // namespace motor
