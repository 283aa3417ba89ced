#include "motor/window/tools/draw_tool.h"

#include <cmath>

#include "motor/window/tools/rubber_band.h"

namespace motor {

void DrawTool::press(const Pointer& pointer) {
  if (hasManyPoints()) {
    points_.push_back(pointer.at);
    last_ = pointer.at;
    site().toolChanged();
  } else {
    gesture_.begin(pointer.at);
  }
}

void DrawTool::drag(const Pointer& pointer) {
  if (hasManyPoints()) return hover(pointer);
  gesture_.moveTo(pointer.at);
  site().toolChanged();
}

void DrawTool::release(const Pointer& pointer) {
  gesture_.moveTo(pointer.at);
  if (hasManyPoints() || !gesture_.end()) return;
  site().toolChanged();
  if (gesture_.isDrag()) {
    mapWindow()->dragged(toPoint(gesture_.from()), toPoint(gesture_.to()), pointer.shift(), pointer.control());
  } else {
    mapWindow()->clicked(toPoint(gesture_.from()), pointer.shift(), pointer.control());
  }
}

// The point is there already: the first press of the double click has put it.
void DrawTool::doublePress(const Pointer& pointer) {
  if (!hasManyPoints()) return press(pointer);
  if (points_.empty()) return;
  const QPointF first = points_.front();
  const QPointF last = points_.back();
  points_.clear();
  site().toolChanged();
  mapWindow()->dragged(toPoint(first), toPoint(last), pointer.shift(), pointer.control());
}

void DrawTool::hover(const Pointer& pointer) {
  last_ = pointer.at;
  if (!points_.empty()) site().toolChanged();
}

bool DrawTool::cancel() {
  const bool hadBegun = gesture_.end() || !points_.empty();
  points_.clear();
  if (hadBegun) site().toolChanged();
  return hadBegun;
}

QPainterPath DrawTool::pulled() const {
  QPainterPath path;
  const QPointF from = gesture_.from();
  const QPointF by = gesture_.by();
  switch (tool().drawMode) {
    case draw_modes::kCircle: {
      const double radius = std::hypot(by.x(), by.y());
      path.addEllipse(from, radius, radius);
      break;
    }
    case draw_modes::kEllipse:
      path.addEllipse(from, std::abs(by.x()), std::abs(by.y()));
      break;
    case draw_modes::kRectangle:
      path.addRect(gesture_.box());
      break;
    default:
      path.moveTo(from);
      path.lineTo(gesture_.to());
      break;
  }
  return path;
}

QPainterPath DrawTool::clicked() const {
  QPainterPath path(points_.front());
  for (const QPointF& p : points_) path.lineTo(p);
  path.lineTo(last_);
  if (tool().drawMode == draw_modes::kPolygon) path.closeSubpath();
  return path;
}

void DrawTool::paint(QPainter& painter, const MapView&) const {
  const bool isLine = tool().drawMode == draw_modes::kLine || tool().drawMode == draw_modes::kPolyline;
  const Ground ground = isLine ? Ground::none : Ground::faint;
  if (gesture_.isDragging()) paintBand(painter, pulled(), ground);
  if (points_.empty()) return;
  paintBand(painter, clicked(), ground);
  for (const QPointF& p : points_) paintKnot(painter, p);
}

}  // namespace motor
