#include "hosts/windows/pop_up_watch.h"

#include "hosts/screen/pop_up_frames.h"
#include "hosts/windows/views/control_view.h"

namespace windows {
namespace {

// The control that a window of the form shows, or null.
const forms::Control* controlAt(HWND at, HWND form) {
  for (; at != nullptr && at != form; at = GetAncestor(at, GA_PARENT)) {
    if (const ControlView* view = ControlView::of(at)) return &view->control();
  }
  return nullptr;
}

}  // namespace

bool pointerIsOutsideMenus(HWND window) {
  POINT pointer{};
  GetCursorPos(&pointer);
  const forms::Control* control = controlAt(WindowFromPoint(pointer), window);
  if (control == nullptr) return true;
  if (control->MouseMove.hasHandlers()) return false;
  while (control->container() != nullptr) control = control->container();
  return !screen::isPopUp(*control);
}

}  // namespace windows
