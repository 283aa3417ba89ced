#include "hosts/windows/form_window.h"
#include "hosts/windows/keyboard_order.h"
#include "hosts/windows/views/combo_view.h"
#include "hosts/windows/views/tab_control_view.h"
#include "hosts/windows/views/web_browser_view.h"

// Where the keyboard is in a form's window, and where its keys take it.
namespace windows {

// Windows gives back the keyboard to the window; the window gives it back to the control that had it.
void FormWindow::activated(bool active) {
  if (!active) {
    lastFocus_ = IsChild(handle(), GetFocus()) != FALSE ? GetFocus() : nullptr;
    return;
  }
  context_.restoresFocus = true;
  if (IsChild(handle(), lastFocus_) != FALSE && IsWindowVisible(lastFocus_) != FALSE) {
    SetFocus(lastFocus_);
  } else {
    focusFirst();
  }
  context_.restoresFocus = false;
}

// The keyboard begins where nothing is started by a key pressed too early.
void FormWindow::focusFirst() {
  for (const HWND each : keyboardOrder(handle())) {
    if ((GetWindowLongPtrW(each, GWL_STYLE) & BS_TYPEMASK) == BS_OWNERDRAW) continue;
    SetFocus(each);
    return;
  }
}

// Control and Tab turn the headings around the keyboard, or those over the largest page.
bool FormWindow::turnPage(bool next) {
  TabControlView* row = nullptr;
  for (HWND at = GetFocus(); at != nullptr && at != handle() && row == nullptr; at = GetParent(at)) {
    row = dynamic_cast<TabControlView*>(ControlView::of(at));
  }
  const auto area = [](const ControlView& tabs) { return tabs.control().width() * tabs.control().height(); };
  const TabControlView* around = row;
  for (const auto& view : views_) {
    auto* tabs = dynamic_cast<TabControlView*>(view.get());
    if (around != nullptr || tabs == nullptr || IsWindowVisible(tabs->window()) == FALSE) continue;
    if (row == nullptr || area(*tabs) > area(*row)) row = tabs;
  }
  if (row == nullptr) return false;
  popUpWatch_.keyboardUsed();
  context_.keyboardUsed = true;
  SetFocus(row->window());
  row->turn(next ? 1 : -1);
  return true;
}

// Whether the keyboard is in an open drop-down list, which Escape closes.
bool FormWindow::listIsOpen(HWND at) const {
  for (; at != nullptr && at != handle(); at = GetParent(at)) {
    const auto* combo = dynamic_cast<const ComboView*>(ControlView::of(at));
    if (combo != nullptr) return combo->isOpen();
  }
  return false;
}

bool FormWindow::takeMessage(const MSG& message) {
  if (message.message == WM_LBUTTONDOWN) {
    popUpWatch_.pointerUsed();
    context_.keyboardUsed = false;
  }
  if (message.message != WM_KEYDOWN) return false;
  for (const auto& view : views_) {
    const auto* page = dynamic_cast<const WebBrowserView*>(view.get());
    if (page != nullptr && message.wParam != VK_TAB && page->translate(message)) return true;
  }
  switch (message.wParam) {
    case VK_TAB: {
      const bool next = GetKeyState(VK_SHIFT) >= 0;
      if (GetKeyState(VK_CONTROL) < 0) return turnPage(next);
      const HWND target = nextForKeyboard(handle(), message.hwnd, next);
      if (target == nullptr) return false;
      popUpWatch_.keyboardUsed();
      context_.keyboardUsed = true;
      SetFocus(target);
      if (ControlView* view = ControlView::of(target)) view->pointAt();
      return true;
    }
    case VK_ESCAPE:
      if (listIsOpen(message.hwnd)) return false;
      if (look_ == screen::FormLook::palette) {
        close();
        return true;
      }
      pointAtForm();
      return false;
    default:
      return false;
  }
}

}  // namespace windows
