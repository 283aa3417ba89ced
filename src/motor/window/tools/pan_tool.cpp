#include "motor/window/tools/pan_tool.h"

#include <utility>

namespace motor {

void PanTool::press(const Pointer& pointer) {
  isHeld_ = true;
  from_ = last_ = pointer.at;
}

void PanTool::moveBy(QPointF by) {
  site().startMoving();
  mapWindow()->pannedBy(by.x(), by.y());
  site().toolChanged();
}

void PanTool::drag(const Pointer& pointer) {
  if (isHeld_) moveBy(pointer.at - std::exchange(last_, pointer.at));
}

void PanTool::release(const Pointer&) { isHeld_ = false; }

bool PanTool::cancel() {
  if (!std::exchange(isHeld_, false)) return false;
  moveBy(from_ - last_);
  return true;
}

QCursor PanTool::cursor() const { return isHeld_ ? Qt::ClosedHandCursor : Qt::OpenHandCursor; }

}  // namespace motor
