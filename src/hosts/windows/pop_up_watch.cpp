#include "hosts/windows/pop_up_watch.h"

#include "hosts/screen/pop_up_frames.h"
#include "hosts/windows/views/control_view.h"

namespace windows {
namespace {

POINT pointer() {
  POINT place{};
  GetCursorPos(&place);
  return place;
}

// The control that a window of the form shows, or null.
const forms::Control* controlAt(HWND at, HWND form) {
  for (; at != nullptr && at != form; at = GetAncestor(at, GA_PARENT)) {
    if (const ControlView* view = ControlView::of(at)) return &view->control();
  }
  return nullptr;
}

bool isOutsideMenus(HWND at, HWND form) {
  const forms::Control* control = controlAt(at, form);
  if (control == nullptr) return true;
  if (control->MouseMove.hasHandlers()) return false;
  while (control->container() != nullptr) control = control->container();
  return !screen::isPopUp(*control);
}

bool listensToPointer(HWND window) {
  const ControlView* view = ControlView::of(window);
  return view != nullptr && view->control().MouseMove.hasHandlers();
}

}  // namespace

void PopUpWatch::keyboardUsed() { rest_ = pointer(); }

void PopUpWatch::pointerUsed() { rest_.reset(); }

bool PopUpWatch::pointerRests() {
  const POINT now = pointer();
  if (rest_ && (rest_->x != now.x || rest_->y != now.y)) rest_.reset();
  return rest_.has_value();
}

bool PopUpWatch::userIsOutside(HWND form) {
  return isOutsideMenus(pointerRests() ? GetFocus() : WindowFromPoint(pointer()), form);
}

HWND labelOfPopUp(HWND frame) {
  const ControlView* view = ControlView::of(frame);
  if (view == nullptr || !screen::isPopUp(view->control())) return nullptr;
  RECT below{};
  GetWindowRect(frame, &below);
  for (HWND each = GetWindow(frame, GW_HWNDFIRST); each != nullptr; each = GetWindow(each, GW_HWNDNEXT)) {
    RECT rect{};
    GetWindowRect(each, &rect);
    const bool isAbove = rect.bottom == below.top && rect.left <= below.left && below.left < rect.right;
    if (isAbove && listensToPointer(each)) return each;
  }
  return nullptr;
}

}  // namespace windows
