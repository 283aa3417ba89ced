#pragma once

#include <string>

#include "hosts/windows/drawing/selected_object.h"
#include "hosts/windows/drawing/window_device.h"

namespace windows {

// Measures texts of a window with a font, in pixels.
class Ruler {
 public:
  Ruler(HWND window, HFONT font) : device_(window), font_(device_.get(), font) {}

  [[nodiscard]] int widthOf(const std::wstring& text) const;
  // The height of a text that breaks at blanks, as DrawText with `format` breaks it.
  [[nodiscard]] int heightIn(const std::wstring& text, int width, UINT format) const;

 private:
  WindowDevice device_;
  SelectedObject font_;
};

}  // namespace windows
