#include "hosts/windows/ports/native_windows.h"

#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/win32/z_order.h"

namespace windows {
namespace {

constexpr UINT kPatience = 10000;  // milliseconds for a window that still answers

HWND windowOf(platform::WindowHandle handle) { return reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle)); }

}  // namespace

platform::WindowHandle NativeWindows::find(const std::string& title) {
  const auto written = ansi(title);
  const HWND found = written ? FindWindowA(nullptr, written->c_str()) : FindWindowW(nullptr, wide(title).c_str());
  return static_cast<platform::WindowHandle>(reinterpret_cast<LONG_PTR>(found));
}

// As SendMessageA, but the program does not hang with a window that does.
void NativeWindows::close(platform::WindowHandle window) {
  if (window == 0) return;
  SendMessageTimeoutA(windowOf(window), WM_CLOSE, 0, 0, SMTO_ABORTIFHUNG, kPatience, nullptr);
}

void NativeWindows::setParent(platform::WindowHandle child, platform::WindowHandle parent) {
  if (child != 0 && parent != 0) SetParent(windowOf(child), windowOf(parent));
}

void NativeWindows::setZOrder(platform::WindowHandle window, platform::ZOrder order, unsigned flags) {
  static_assert(platform::kNoSize == SWP_NOSIZE && platform::kNoMove == SWP_NOMOVE &&
                platform::kNoActivate == SWP_NOACTIVATE && platform::kShowWindow == SWP_SHOWWINDOW);
  if (window == 0) return;
  setTopmost(windowOf(window), order == platform::ZOrder::topmost, flags);
}

}  // namespace windows
