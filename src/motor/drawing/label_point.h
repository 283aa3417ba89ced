#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QSizeF>
#include <vector>

namespace motor {

// The point inside a polygon that is farthest from its outline, within `precision`: where a label has most room. The
// rings are closed and inside by the even-odd rule. By subdivision of squares, the most promising first (the method of
// Garcia-Castellanos and Lombardo 2007, made exact by a bound on each square). The middle of an empty polygon's bounds.
[[nodiscard]] QPointF labelPoint(const std::vector<QPolygonF>& rings, double precision);

// The centre of a label of a size near a point inside such rings: moved sideways so far that the label keeps within
// them where its rows have the room, else to the middle of what room they have.
[[nodiscard]] QPointF roomForLabel(const std::vector<QPolygonF>& rings, QPointF point, QSizeF label);

}  // namespace motor
