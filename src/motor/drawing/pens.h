#pragma once

#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <vector>

#include "motor/language/styles.h"

namespace motor {

// Logical pixels in a point of type: the screen's 96 to the inch.
inline constexpr double kPixelsPerPoint = 96.0 / 72.0;

// How wide a pen's line is in logical pixels: 1-7 are pixels, above 10 they are points * 10 + 10. At most 256.
[[nodiscard]] double penWidth(const Pen& pen);

// Whether a pen draws anything: pattern 1, also interleaved, and width 0 do not.
[[nodiscard]] bool isVisible(const Pen& pen);

// Whether the strokes of lines that meet are to be drawn one after the other for all of them, so that the lines join
// at crossings as roads do: patterns above 128.
[[nodiscard]] bool isInterleaved(const Pen& pen);

// The strokes that make up a pen's line, to be drawn one over the other. None for a pen that draws nothing; a number
// outside the set of patterns draws a solid line.
[[nodiscard]] std::vector<QPen> penStrokes(const Pen& pen);

// Draws one of those strokes along a line. Dashes that are broader than long, as the ticks of railways, stay straight
// where the line bends.
void drawStroke(QPainter& painter, const QPen& stroke, const QPolygonF& line);

// The part of a line that the strokes follow: a line with arrow heads ends inside them, so that their tips stay sharp.
[[nodiscard]] QPolygonF shaftOf(const Pen& pen, const QPolygonF& line);

// Draws the arrow heads that some patterns put at the ends of an open line.
void paintArrowHeads(QPainter& painter, const Pen& pen, const QPolygonF& line);

// Draws one open line with all its strokes and heads.
void paintLine(QPainter& painter, const Pen& pen, const QPolygonF& line);

}  // namespace motor
