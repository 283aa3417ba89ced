#include "hosts/desktop/ports/qt_window_system.h"

namespace desktop {

platform::WindowHandle QtWindowSystem::find(const std::string& title) {
  FormWindow* window = host_.windowTitled(title);
  return window == nullptr ? 0 : handles_.handleOf(*window);
}

void QtWindowSystem::close(platform::WindowHandle window) {
  if (QWidget* widget = handles_.widget(window)) widget->close();
}

void QtWindowSystem::setParent(platform::WindowHandle child, platform::WindowHandle parent) {
  QWidget* inner = handles_.widget(child);
  QWidget* outer = handles_.widget(parent);
  if (inner == nullptr || outer == nullptr) return;
  inner->setParent(outer);
  inner->show();
}

// A window in front of its owner stays there by itself; raising it is all that is left to do.
void QtWindowSystem::setZOrder(platform::WindowHandle window, platform::ZOrder order, unsigned flags) {
  QWidget* widget = handles_.widget(window);
  if (widget == nullptr) return;
  if ((flags & platform::kNoMove) == 0) widget->move(0, 0);
  if ((flags & platform::kShowWindow) != 0) widget->show();
  if (order == platform::ZOrder::topmost) widget->raise();
}

}  // namespace desktop
