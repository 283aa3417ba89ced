#include "motor/window/tools/click_tool.h"

namespace motor {

void ClickTool::press(const Pointer& pointer) { gesture_.begin(pointer.at); }

void ClickTool::drag(const Pointer& pointer) { gesture_.moveTo(pointer.at); }

void ClickTool::release(const Pointer& pointer) {
  gesture_.moveTo(pointer.at);
  if (!gesture_.end() || gesture_.isDrag()) return;
  mapWindow()->clicked(toPoint(gesture_.from()), pointer.shift(), pointer.control());
}

bool ClickTool::cancel() { return gesture_.end(); }

bool ClickTool::lightsObjects() const { return tool().command == 0 || tool().command == tools::kSelect; }

}  // namespace motor
