#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

namespace motor {

// A round distance and the pixels that it takes.
struct ScaleBar {
  double metres = 0;
  double pixels = 0;
  QString text;  // "50 km", "500 m"
};

// The longest of 1, 2 or 5 times a power of ten that takes at most `mostPixels`; nothing for a scale that is no number.
[[nodiscard]] ScaleBar scaleBarFor(double metresPerPixel, double mostPixels);

// The light plate that a scale bar lies on, with its lower left end at `corner`; empty for a bar without length.
[[nodiscard]] QRectF scaleBarPlate(const ScaleBar& bar, QPointF corner);

// Paints a scale bar on its plate.
void paintScaleBar(QPainter& painter, const ScaleBar& bar, QPointF corner);

}  // namespace motor
