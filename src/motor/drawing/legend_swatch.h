#pragma once

#include <QPainter>
#include <QRectF>
#include <QSizeF>

#include "motor/drawing/shape_painter.h"

namespace motor {

// What stands before a line of a legend: a sample of how objects are drawn.
struct LegendSwatch {
  enum class Kind { none, region, line, symbol, sign, text };

  Kind kind = Kind::none;
  DrawnStyle style;
  double points = 0;  // of a sign: its size
};

// The sample of objects of a kind.
[[nodiscard]] LegendSwatch::Kind swatchOf(MapObject::Kind kind);

// Its room in logical pixels. Symbols are shown at their own size, but those of a layer no taller than other swatches.
[[nodiscard]] QSizeF swatchSize(const LegendSwatch& swatch);

// Paints it in the middle of a box of at least that room.
void paintSwatch(QPainter& painter, const LegendSwatch& swatch, const QRectF& box, double devicePixelRatio);

}  // namespace motor
