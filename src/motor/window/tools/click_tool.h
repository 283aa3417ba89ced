#pragma once

#include "motor/window/tools/gesture.h"
#include "motor/window/tools/map_tool.h"

namespace motor {

// A tool that acts where the user clicks: select, and buttons of the program's own that draw a point. A press that
// becomes a drag does nothing.
class ClickTool : public MapTool {
 public:
  using MapTool::MapTool;

  void press(const Pointer& pointer) override;
  void drag(const Pointer& pointer) override;
  void release(const Pointer& pointer) override;
  bool cancel() override;
  [[nodiscard]] bool lightsObjects() const override;

 private:
  Gesture gesture_;
};

}  // namespace motor
