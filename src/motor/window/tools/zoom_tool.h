#pragma once

#include "motor/window/tools/gesture.h"
#include "motor/window/tools/map_tool.h"

namespace motor {

// Zoom in and zoom out. A click makes twice as much or half as much of the point that it brings to the middle. A box
// that is pulled fills the window, or takes what the window shows. Escape gives the box up.
class ZoomTool : public MapTool {
 public:
  using MapTool::MapTool;

  void press(const Pointer& pointer) override;
  void drag(const Pointer& pointer) override;
  void release(const Pointer& pointer) override;
  bool cancel() override;
  void paint(QPainter& painter, const MapView& view) const override;

 private:
  [[nodiscard]] bool comesNearer() const { return tool().command == tools::kZoomIn; }

  Gesture gesture_;
};

}  // namespace motor
