#pragma once

#include "hosts/windows/win32/windows_h.h"

namespace windows {

// The device of a window's own room, as long as this lives.
class WindowDevice {
 public:
  explicit WindowDevice(HWND window) : window_(window), device_(GetDC(window)) {}
  ~WindowDevice() { ReleaseDC(window_, device_); }
  WindowDevice(const WindowDevice&) = delete;
  WindowDevice& operator=(const WindowDevice&) = delete;

  [[nodiscard]] HDC get() const { return device_; }

 private:
  HWND window_;
  HDC device_;
};

}  // namespace windows
