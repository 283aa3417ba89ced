#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <optional>
#include <vector>

namespace motor {

// A place on a line for a label that may lie along it.
struct LinePlace {
  QPointF at;          // pixels
  double degrees = 0;  // counter-clockwise from the east, above -90 and at most 90: texts stay upright
};

// The best place for a label of a width on lines, all in pixels: on the longest piece of them in the window, where it
// is straight over the label's width and near its middle. None when nothing of them is in the window.
[[nodiscard]] std::optional<LinePlace> linePlace(const std::vector<QPolygonF>& lines, const QRectF& window,
                                                 double width);

}  // namespace motor
