#pragma once

#include "hosts/windows/win32/windows_h.h"

namespace windows {

// A window's answer to WM_PAINT, as long as it lives.
class Painting {
 public:
  explicit Painting(HWND window) : window_(window) { BeginPaint(window_, &system_); }
  ~Painting() { EndPaint(window_, &system_); }
  Painting(const Painting&) = delete;
  Painting& operator=(const Painting&) = delete;

  [[nodiscard]] HDC device() const { return system_.hdc; }

 private:
  HWND window_;
  PAINTSTRUCT system_{};
};

}  // namespace windows
