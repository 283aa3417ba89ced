#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "motor/session/ground_distance.h"
#include "motor/window/overlays/plate.h"
#include "motor/window/tools/map_tool.h"

namespace motor {

// The ruler. Each click ends a segment and begins the next, a double click ends the last; then the lengths stay to be
// read until the next click. The Backspace key takes the last point back, Escape all of them. Lengths are those on the
// ground, in the map's distance unit; the points stay on the map while it is moved and zoomed.
class RulerTool : public MapTool {
 public:
  using MapTool::MapTool;

  void press(const Pointer& pointer) override;
  void drag(const Pointer& pointer) override { hover(pointer); }
  void doublePress(const Pointer& pointer) override;
  void hover(const Pointer& pointer) override;
  bool takeBack() override;
  bool cancel() override;
  void paint(QPainter& painter, const MapView& view) const override;

  // What the panel says: the running segment and the total, and what the user can do next.
  [[nodiscard]] std::vector<Reading> readings() const;
  [[nodiscard]] QString hint() const;

 private:
  void begin();
  // Gives up what was measured in a coordinate system that is the map's no more.
  void followMap();
  [[nodiscard]] double measured(Point from, Point to) const;
  [[nodiscard]] QString textOf(double metres) const;

  std::vector<Point> knots_;      // in the map's coordinates
  std::vector<double> segments_;  // metres between them
  std::optional<Point> end_;      // of the running segment
  double running_ = 0;            // metres
  bool isRunning_ = false;
  CoordinateSystem system_;                 // of the points
  std::optional<GroundDistance> distance_;  // in it
};

}  // namespace motor
