#pragma once

#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>

namespace motor {

// Lines that the user pulls over the map, in the tools' one look: blue between two light edges, so that they are seen
// on any map.

// A box around what comes nearer: the map outside it is dimmed.
void paintBoxOfInterest(QPainter& painter, const QRectF& window, const QRectF& box);
// A box into which the map goes: a frame with a light ground and marks that point inwards.
void paintBoxOfRetreat(QPainter& painter, const QRectF& box);

enum class Ground { none, faint };
// A line or an outline, and what lies inside it.
void paintBand(QPainter& painter, const QPainterPath& path, Ground ground);
// A line whose end is not fixed yet.
void paintRunningLine(QPainter& painter, const QLineF& line);
// A point that is fixed.
void paintKnot(QPainter& painter, QPointF at);

}  // namespace motor
