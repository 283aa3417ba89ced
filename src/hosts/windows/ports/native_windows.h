#pragma once

#include "platform/window_system.h"

namespace windows {

// FindWindowA, SendMessageA(WM_CLOSE), SetParent and SetWindowPos; a handle is the HWND's value. Titles go through the
// machine's code page; one that this cannot write is looked for as it is.
class NativeWindows : public platform::WindowSystem {
 public:
  [[nodiscard]] platform::WindowHandle find(const std::string& title) override;
  // Waits for the window, but not for one that hangs.
  void close(platform::WindowHandle window) override;
  void setParent(platform::WindowHandle child, platform::WindowHandle parent) override;
  void setZOrder(platform::WindowHandle window, platform::ZOrder order, unsigned flags) override;
};

}  // namespace windows
