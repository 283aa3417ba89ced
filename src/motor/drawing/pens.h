#pragma once

#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <vector>

#include "motor/language/styles.h"

namespace motor {

// Logical pixels in a point of type: the screen's 96 to the inch.
inline constexpr double kPixelsPerPoint = 96.0 / 72.0;

// How wide a pen's line is in logical pixels: 1-7 are pixels, above 10 they are points * 10 + 10.
[[nodiscard]] double penWidth(const Pen& pen);

// Whether a pen draws anything: pattern 1 and width 0 do not.
[[nodiscard]] bool isVisible(const Pen& pen);

// The strokes that make up a pen's line, to be drawn one over the other. None for a pen that draws nothing; a number
// outside the set of patterns draws a solid line.
[[nodiscard]] std::vector<QPen> penStrokes(const Pen& pen);

// The arrow heads that some patterns put at a line's ends.
struct ArrowHeads {
  bool atStart = false;
  bool atEnd = false;
};
[[nodiscard]] ArrowHeads arrowHeads(const Pen& pen);

// Draws the arrow heads of a pen on an open line of at least two points.
void paintArrowHeads(QPainter& painter, const Pen& pen, const QPolygonF& line);

}  // namespace motor
