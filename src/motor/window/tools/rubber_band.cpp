#include "motor/window/tools/rubber_band.h"

#include <QPen>

namespace motor {

namespace {

constexpr QColor kBand(20, 96, 200);
constexpr QColor kEdge(255, 255, 255, 210);
constexpr QColor kGround(20, 96, 200, 26);
constexpr QColor kDimmed(18, 26, 40, 48);
constexpr double kBandWidth = 1.6;
constexpr double kEdgeWidth = 4;
constexpr double kKnot = 3.5;
constexpr double kMark = 7;  // of the marks in the corners of a box
constexpr double kMarkInset = 4;
constexpr double kRoomForMarks = 28;

QPen pen(const QColor& colour, double width) { return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin}; }

void paintCorners(QPainter& painter, const QRectF& box) {
  if (box.width() < kRoomForMarks || box.height() < kRoomForMarks) return;
  const QRectF inner = box.adjusted(kMarkInset, kMarkInset, -kMarkInset, -kMarkInset);
  painter.setPen(pen(kBand, kBandWidth));
  const auto mark = [&](QPointF corner, double x, double y) {
    const QPointF tip = corner + QPointF(x, y) * kMark;
    painter.drawLine(corner, tip);
    painter.drawPolyline(QPolygonF{tip - QPointF(x, 0) * kMark * 0.7, tip, tip - QPointF(0, y) * kMark * 0.7});
  };
  mark(inner.topLeft(), 1, 1);
  mark(inner.topRight(), -1, 1);
  mark(inner.bottomLeft(), 1, -1);
  mark(inner.bottomRight(), -1, -1);
}

void paintFrame(QPainter& painter, const QRectF& box) {
  painter.setBrush(Qt::NoBrush);
  QPen edge(kEdge, kEdgeWidth);
  edge.setJoinStyle(Qt::MiterJoin);
  painter.setPen(edge);
  painter.drawRect(box);
  QPen line(kBand, kBandWidth);
  line.setJoinStyle(Qt::MiterJoin);
  painter.setPen(line);
  painter.drawRect(box);
}

}  // namespace

void paintBoxOfInterest(QPainter& painter, const QRectF& window, const QRectF& box) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath outside;
  outside.setFillRule(Qt::OddEvenFill);
  outside.addRect(window);
  outside.addRect(box.intersected(window));
  painter.fillPath(outside, kDimmed);
  paintFrame(painter, box);
  painter.restore();
}

void paintBoxOfRetreat(QPainter& painter, const QRectF& box) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(box, QColor(255, 255, 255, 64));
  paintFrame(painter, box);
  paintCorners(painter, box);
  painter.restore();
}

void paintBand(QPainter& painter, const QPainterPath& path, Ground ground) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.strokePath(path, pen(kEdge, kEdgeWidth));
  painter.setPen(pen(kBand, kBandWidth));
  painter.setBrush(ground == Ground::none ? QBrush(Qt::NoBrush) : kGround);
  painter.drawPath(path);
  painter.restore();
}

void paintRunningLine(QPainter& painter, const QLineF& line) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(pen(kEdge, kEdgeWidth));
  painter.drawLine(line);
  QPen dashes = pen(kBand, kBandWidth);
  dashes.setDashPattern({4, 3});
  painter.setPen(dashes);
  painter.drawLine(line);
  painter.restore();
}

void paintKnot(QPainter& painter, QPointF at) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(kBand, kBandWidth));
  painter.setBrush(Qt::white);
  painter.drawEllipse(at, kKnot, kKnot);
  painter.restore();
}

}  // namespace motor
