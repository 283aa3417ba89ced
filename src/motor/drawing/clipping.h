#pragma once

#include <QPolygonF>
#include <QRectF>
#include <vector>

namespace motor {

// The part of a ring inside a rectangle, closed along the rectangle's sides (Sutherland and Hodgman 1974). Empty when
// nothing is inside.
[[nodiscard]] QPolygonF clippedRing(const QPolygonF& ring, const QRectF& area);

// The pieces of a line inside a rectangle.
[[nodiscard]] std::vector<QPolygonF> clippedLine(const QPolygonF& line, const QRectF& area);

}  // namespace motor
