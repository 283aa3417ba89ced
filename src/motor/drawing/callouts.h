#pragma once

#include <QPainter>

#include "motor/map/layer.h"

namespace motor {

// Draws the line from a label that was moved by hand (its box, in pixels) to what it speaks of, as the layer or the
// label wants it; nothing where the two meet.
void paintCallout(QPainter& painter, const Layer& layer, const EditedLabel& label, const QRectF& box, QPointF object);

}  // namespace motor
