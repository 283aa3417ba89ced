#pragma once

#include "hosts/windows/win32/windows_h.h"

namespace windows {

// Whether the window is among those that are always in front of the others.
[[nodiscard]] bool isTopmost(HWND window);

// Puts the window in front of all others for good, or takes it out of there; `flags` as SetWindowPos takes them. The
// system takes windows that it owns along; those of this thread that were always in front stay so.
void setTopmost(HWND window, bool topmost, UINT flags);

}  // namespace windows
