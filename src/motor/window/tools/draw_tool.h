#pragma once

#include <QPainterPath>
#include <vector>

#include "motor/window/tools/gesture.h"
#include "motor/window/tools/map_tool.h"

namespace motor {

// A button of the program's own that draws more than a point. Circle, ellipse, rectangle and line are pulled from their
// first to their second point (a circle and an ellipse from the middle); polygon and polyline have a point for each
// click, until a double click. The program hears of the first and the last point.
class DrawTool : public MapTool {
 public:
  using MapTool::MapTool;

  void press(const Pointer& pointer) override;
  void drag(const Pointer& pointer) override;
  void release(const Pointer& pointer) override;
  void doublePress(const Pointer& pointer) override;
  void hover(const Pointer& pointer) override;
  bool cancel() override;
  void paint(QPainter& painter, const MapView& view) const override;

 private:
  [[nodiscard]] bool hasManyPoints() const {
    return tool().drawMode == draw_modes::kPolygon || tool().drawMode == draw_modes::kPolyline;
  }
  [[nodiscard]] QPainterPath pulled() const;
  [[nodiscard]] QPainterPath clicked() const;

  Gesture gesture_;
  std::vector<QPointF> points_;  // of a polygon or polyline
  QPointF last_;
};

}  // namespace motor
