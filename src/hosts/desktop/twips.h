#pragma once

#include <QRect>
#include <QtMath>

#include "forms/control.h"
#include "hosts/desktop/drawn_size.h"

// The forms' unit and the toolkit's: 15 twips are one logical pixel, or more where the program draws itself smaller.
namespace desktop {

inline constexpr double kTwipsPerPixel = 15;

[[nodiscard]] inline int toPixels(forms::Twips twips) { return qRound(scaled(twips / kTwipsPerPixel)); }
[[nodiscard]] inline forms::Twips toTwips(int pixels) { return pixels * kTwipsPerPixel / ownScale(); }

// Where a control stands in its container. Edges are rounded, not sizes: neighbours in the model touch on the screen.
[[nodiscard]] inline QRect pixelRect(const forms::Control& control) {
  const QPoint topLeft(toPixels(control.left()), toPixels(control.top()));
  const QPoint end(toPixels(control.left() + control.width()), toPixels(control.top() + control.height()));
  return {topLeft, QSize(qMax(0, end.x() - topLeft.x()), qMax(0, end.y() - topLeft.y()))};
}

}  // namespace desktop
