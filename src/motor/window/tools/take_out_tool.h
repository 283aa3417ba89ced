#pragma once

#include "motor/window/tools/gesture.h"
#include "motor/window/tools/map_tool.h"

namespace motor {

// Drags the map's picture out of the window, to whatever takes pictures.
class TakeOutTool : public MapTool {
 public:
  using MapTool::MapTool;

  void press(const Pointer& pointer) override { gesture_.begin(pointer.at); }
  void drag(const Pointer& pointer) override {
    gesture_.moveTo(pointer.at);
    if (!gesture_.isDragging()) return;
    gesture_.end();
    site().takeOut();
  }
  void release(const Pointer&) override { gesture_.end(); }

 private:
  Gesture gesture_;
};

}  // namespace motor
