#include "hosts/windows/waiting_windows.h"

#include <algorithm>
#include <utility>

#include "hosts/windows/win32/z_order.h"
#include "hosts/windows/windows_host.h"

namespace windows {
namespace {

constexpr UINT kInPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;

}  // namespace

// All are found before the first one goes: the system takes its owner along.
void WaitingWindows::stepAside() {
  std::vector<HWND> topmost;
  for (const FormWindow* window : host_.windows()) {
    if (isTopmost(window->handle())) topmost.push_back(window->handle());
  }
  for (const HWND window : topmost) {
    setTopmost(window, false, kInPlace);
    aside_.push_back(window);
  }
}

void WaitingWindows::comeBack() {
  const std::vector<HWND> aside = std::exchange(aside_, {});
  for (const FormWindow* window : host_.windows()) {
    if (std::ranges::find(aside, window->handle()) != aside.end()) setTopmost(window->handle(), true, kInPlace);
  }
}

void WaitingWindows::takeInput() {
  takeInputLater_ = openBoxes_ > 0;
  if (takeInputLater_) return;
  for (const FormWindow* window : host_.windows()) EnableWindow(window->handle(), TRUE);
}

void WaitingWindows::boxClosed() {
  --openBoxes_;
  if (openBoxes_ == 0 && takeInputLater_) takeInput();
}

}  // namespace windows
