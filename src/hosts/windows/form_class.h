#pragma once

#include "hosts/screen/looks.h"
#include "hosts/windows/drawing/scale.h"

namespace windows {

struct FormStyle {
  DWORD basic;
  DWORD extended;
};
// How the window of a form is framed.
[[nodiscard]] FormStyle formStyle(screen::FormLook look);

// The class of the windows of forms, whose messages go to `receive`.
[[nodiscard]] const wchar_t* formClass(WNDPROC receive);

// Gives a window without a frame the corners of the splash's picture.
void roundCorners(HWND window, const Scale& scale);

}  // namespace windows
