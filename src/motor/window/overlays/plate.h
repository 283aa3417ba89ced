#pragma once

#include <QPainter>
#include <QString>
#include <vector>

namespace motor {

// A named figure, such as a length.
struct Reading {
  QString name;
  QString value;
};

// Writes figures below each other, and a smaller hint below them, on a light plate with its top left at `corner`.
// Returns the plate; nothing is painted where there is nothing to say.
QRectF paintReadings(QPainter& painter, QPointF corner, const std::vector<Reading>& readings, const QString& hint);

// Writes lines, the first in bold, on a dark plate near a point, inside `window`. Returns the plate.
QRectF paintNote(QPainter& painter, QPointF near, const QRectF& window, const QStringList& lines);

}  // namespace motor
