#include "motor/drawing/callouts.h"

#include <algorithm>
#include <cmath>

#include "motor/drawing/colours.h"
#include "motor/drawing/pens.h"

namespace motor {

namespace {

constexpr double kGap = 2;        // pixels between the label and its line
constexpr double kHead = 7;       // pixels of an arrow's head
constexpr double kHeadWidth = 5;  // from side to side

// The point of a box that lies nearest to another.
QPointF nearest(const QRectF& box, QPointF p) {
  return {std::clamp(p.x(), box.left(), box.right()), std::clamp(p.y(), box.top(), box.bottom())};
}

void paintHead(QPainter& painter, const QColor& colour, QPointF tip, QPointF direction) {
  const QPointF base = tip - direction * kHead;
  const QPointF side(-direction.y() * kHeadWidth / 2, direction.x() * kHeadWidth / 2);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawPolygon(QPolygonF{tip, base + side, base - side});
}

}  // namespace

void paintCallout(QPainter& painter, const Layer& layer, const EditedLabel& label, const QRectF& box, QPointF object) {
  const LabelLine kind = label.line.value_or(layer.label.line);
  const Pen pen = label.pen.value_or(layer.label.pen);
  const QRectF around = box.adjusted(-kGap, -kGap, kGap, kGap);
  if (kind == LabelLine::none || !isVisible(pen) || around.contains(object)) return;
  const QPointF start = nearest(around, object);
  const QPointF way = object - start;
  const double length = std::hypot(way.x(), way.y());
  if (!(length >= 1)) return;
  painter.save();
  for (const QPen& stroke : penStrokes(pen)) {
    painter.setPen(stroke);
    painter.drawLine(start, object);
  }
  if (kind == LabelLine::arrow) paintHead(painter, toQColor(pen.colour), object, way / length);
  painter.restore();
}

}  // namespace motor
