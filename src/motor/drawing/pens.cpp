#include "motor/drawing/pens.h"

#include <QLineF>
#include <algorithm>

#include "motor/drawing/colours.h"
#include "motor/drawing/pen_patterns.h"

namespace motor {

namespace {

constexpr int kFirstPointWidth = 10;  // widths above are points * 10 + 10
constexpr int kInterleaved = 128;     // added to a pattern's number

QPen toQPen(const PatternStroke& stroke, double unit, const QColor& colour) {
  const double width = stroke.width * unit;
  QPen pen(stroke.paper ? QColor(Qt::white) : colour, width);
  QList<qreal> dashes;
  for (const double dash : stroke.dash) {
    if (dash <= 0) break;
    dashes.append(dash * unit / width);
  }
  // A plain line's ends meet those of the next; compound lines stay open at their ends, and ticks sharp at corners.
  const bool isPlain = dashes.isEmpty() && stroke.width == 1 && !stroke.paper;
  pen.setCapStyle(isPlain ? Qt::RoundCap : Qt::FlatCap);
  pen.setJoinStyle(dashes.isEmpty() ? Qt::RoundJoin : Qt::BevelJoin);
  if (!dashes.isEmpty()) pen.setDashPattern(dashes);
  return pen;
}

void paintArrowHead(QPainter& painter, double width, QPointF tip, QPointF from) {
  const double length = 4 + 3 * width;
  QLineF shaft(tip, from);
  if (shaft.length() == 0) return;
  shaft.setLength(length);
  QLineF across = shaft.normalVector();
  across.translate(shaft.p2() - shaft.p1());
  across.setLength(length * 0.4);
  const QPointF half = across.p2() - across.p1();
  painter.drawPolygon(QPolygonF{tip, shaft.p2() + half, shaft.p2() - half});
}

}  // namespace

double penWidth(const Pen& pen) {
  if (pen.width > kFirstPointWidth) return (pen.width - kFirstPointWidth) / 10.0 * kPixelsPerPoint;
  return std::max(0, pen.width);
}

bool isVisible(const Pen& pen) { return pen.pattern != 1 && pen.width > 0; }

std::vector<QPen> penStrokes(const Pen& pen) {
  std::vector<QPen> strokes;
  if (!isVisible(pen)) return strokes;
  const double unit = penWidth(pen);
  const QColor colour = toQColor(pen.colour);
  for (const PatternStroke& stroke : penPattern(pen.pattern % kInterleaved).strokes) {
    if (stroke.width > 0) strokes.push_back(toQPen(stroke, unit, colour));
  }
  return strokes;
}

ArrowHeads arrowHeads(const Pen& pen) {
  const PenPattern::Arrow arrow = penPattern(pen.pattern % kInterleaved).arrow;
  return {arrow == PenPattern::Arrow::start || arrow == PenPattern::Arrow::both,
          arrow == PenPattern::Arrow::end || arrow == PenPattern::Arrow::both};
}

void paintArrowHeads(QPainter& painter, const Pen& pen, const QPolygonF& line) {
  const ArrowHeads heads = arrowHeads(pen);
  if (line.size() < 2 || !isVisible(pen)) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(toQColor(pen.colour));
  const double width = penWidth(pen);
  if (heads.atEnd) paintArrowHead(painter, width, line.back(), line[line.size() - 2]);
  if (heads.atStart) paintArrowHead(painter, width, line.front(), line[1]);
}

}  // namespace motor
