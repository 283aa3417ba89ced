#pragma once

#include <QPainter>

namespace motor {

// Paints an arrow with an N that points to true north, `degrees` clockwise from the page's top, with its middle at
// `centre`; it takes a circle of 22 pixels around it.
void paintNorthArrow(QPainter& painter, QPointF centre, double degrees);

}  // namespace motor
