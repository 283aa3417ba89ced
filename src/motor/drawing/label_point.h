#pragma once

#include <QPointF>
#include <QPolygonF>
#include <vector>

namespace motor {

// The point inside a polygon that is farthest from its outline, within `precision`: where a label has most room. The
// rings are closed and inside by the even-odd rule. By subdivision of squares, the most promising first (the method of
// Garcia-Castellanos and Lombardo 2007, made exact by a bound on each square). The middle of an empty polygon's bounds.
[[nodiscard]] QPointF labelPoint(const std::vector<QPolygonF>& rings, double precision);

}  // namespace motor
