#include "motor/drawing/pens.h"

#include <QLineF>
#include <algorithm>
#include <cmath>

#include "motor/drawing/colours.h"
#include "motor/drawing/measured_line.h"
#include "motor/drawing/pen_patterns.h"

namespace motor {

namespace {

constexpr int kFirstPointWidth = 10;   // widths above are points * 10 + 10
constexpr int kInterleaved = 128;      // added to a pattern's number
constexpr double kWidest = 256;        // pixels; whatever a statement says, there is a map below the line
constexpr double kHeadBreadth = 0.42;  // half of an arrow head's, as a part of its length
constexpr double kHeadOverlap = 0.7;   // the part of a head that its line does not reach into

const PenPattern& patternOf(const Pen& pen) { return penPattern(pen.pattern % kInterleaved); }

constexpr double kThin = 1.5;  // logical pixels

QPen toQPen(const PatternStroke& stroke, double unit, const QColor& colour) {
  const double width = stroke.width * unit;
  const double dashUnit = std::max(1.0, unit);  // the dashes of a hairline stay apart
  QPen pen(stroke.paper ? QColor(Qt::white) : colour, width);
  QList<qreal> dashes;
  for (const double dash : stroke.dash) {
    if (dash <= 0) break;
    dashes.append(dash * dashUnit / width);
  }
  // A plain line's ends meet those of the next; compound lines stay open at their ends, and ticks sharp at corners.
  const bool isPlain = dashes.isEmpty() && stroke.width == 1 && !stroke.paper;
  pen.setCapStyle(isPlain ? Qt::RoundCap : Qt::FlatCap);
  // No eye sees the corners of a thin line, and round ones take several times as long.
  pen.setJoinStyle(dashes.isEmpty() && width > kThin ? Qt::RoundJoin : Qt::BevelJoin);
  if (!dashes.isEmpty()) pen.setDashPattern(dashes);
  return pen;
}

// Each dash as a straight piece from its start to its end.
void drawTicks(QPainter& painter, const QPen& stroke, const QPolygonF& line) {
  const MeasuredLine measured(line);
  QPen tick(stroke.color(), stroke.widthF(), Qt::SolidLine, Qt::FlatCap);
  painter.setPen(tick);
  QList<QLineF> ticks;
  double way = 0;
  while (way < measured.length()) {
    bool isDash = true;
    for (const double part : stroke.dashPattern()) {
      const double length = part * stroke.widthF();
      const QLineF piece(measured.after(way), measured.after(way + length));
      if (isDash && way < measured.length() && piece.length() > length / 2) ticks.append(piece);
      way += length;
      isDash = !isDash;
    }
  }
  painter.drawLines(ticks);
}

bool hasHeadAtStart(const PenPattern& pattern) {
  return pattern.arrow == PenPattern::Arrow::start || pattern.arrow == PenPattern::Arrow::both;
}

bool hasHeadAtEnd(const PenPattern& pattern) {
  return pattern.arrow == PenPattern::Arrow::end || pattern.arrow == PenPattern::Arrow::both;
}

double headLength(const Pen& pen) { return 6 + 3 * penWidth(pen); }

// Takes a length off the line's end; the last piece keeps its direction.
void shorten(QPolygonF& line, double by) {
  while (line.size() > 2 && QLineF(line[line.size() - 2], line.back()).length() <= by) {
    by -= QLineF(line[line.size() - 2], line.back()).length();
    line.removeLast();
  }
  QLineF last(line[line.size() - 2], line.back());
  last.setLength(std::max(0.0, last.length() - by));
  line.back() = last.p2();
}

void reverse(QPolygonF& line) { std::reverse(line.begin(), line.end()); }

// The direction is that of the line over the head's length, so that a short last piece does not turn it.
void paintHead(QPainter& painter, const Pen& pen, const QPolygonF& line) {
  const double length = headLength(pen);
  QPolygonF rest = line;
  shorten(rest, length);
  QLineF shaft(line.back(), rest.back());
  if (!(shaft.length() > 0)) return;
  shaft.setLength(length);
  const QPointF across = QPointF(-shaft.dy(), shaft.dx()) * kHeadBreadth;
  const QPolygonF head{shaft.p2() + across, line.back(), shaft.p2() - across};
  if (patternOf(pen).openHead) {
    painter.setPen(QPen(toQColor(pen.colour), penWidth(pen), Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(head);
  } else {
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQColor(pen.colour));
    painter.drawPolygon(head);
  }
}

}  // namespace

double penWidth(const Pen& pen) {
  if (pen.width > kFirstPointWidth) return std::min((pen.width - kFirstPointWidth) / 10.0 * kPixelsPerPoint, kWidest);
  return std::max(0, pen.width);
}

bool isVisible(const Pen& pen) { return pen.pattern % kInterleaved != 1 && pen.width > 0; }

bool isInterleaved(const Pen& pen) { return pen.pattern > kInterleaved; }

std::vector<QPen> penStrokes(const Pen& pen) {
  std::vector<QPen> strokes;
  if (!isVisible(pen)) return strokes;
  const double unit = penWidth(pen);
  const QColor colour = toQColor(pen.colour);
  for (const PatternStroke& stroke : patternOf(pen).strokes) {
    if (stroke.width > 0) strokes.push_back(toQPen(stroke, unit, colour));
  }
  return strokes;
}

void drawStroke(QPainter& painter, const QPen& stroke, const QPolygonF& line) {
  const bool hasTicks = stroke.style() == Qt::CustomDashLine && stroke.dashPattern().front() < 1;
  painter.setPen(stroke);
  hasTicks ? drawTicks(painter, stroke, line) : painter.drawPolyline(line);
}

QPolygonF shaftOf(const Pen& pen, const QPolygonF& line) {
  const PenPattern& pattern = patternOf(pen);
  if (pattern.arrow == PenPattern::Arrow::none || pattern.openHead || line.size() < 2) return line;
  QPolygonF shaft = line;
  const double cut = headLength(pen) * kHeadOverlap;
  if (hasHeadAtEnd(pattern)) shorten(shaft, cut);
  if (hasHeadAtStart(pattern)) {
    reverse(shaft);
    shorten(shaft, cut);
    reverse(shaft);
  }
  return shaft;
}

void paintArrowHeads(QPainter& painter, const Pen& pen, const QPolygonF& line) {
  const PenPattern& pattern = patternOf(pen);
  if (pattern.arrow == PenPattern::Arrow::none || line.size() < 2 || !isVisible(pen)) return;
  if (hasHeadAtEnd(pattern)) paintHead(painter, pen, line);
  if (!hasHeadAtStart(pattern)) return;
  QPolygonF reversed = line;
  reverse(reversed);
  paintHead(painter, pen, reversed);
}

void paintLine(QPainter& painter, const Pen& pen, const QPolygonF& line) {
  const QPolygonF shaft = shaftOf(pen, line);
  for (const QPen& stroke : penStrokes(pen)) drawStroke(painter, stroke, shaft);
  paintArrowHeads(painter, pen, line);
}

}  // namespace motor
