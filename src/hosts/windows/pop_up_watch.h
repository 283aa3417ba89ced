#pragma once

#include "hosts/windows/win32/windows_h.h"

namespace windows {

// Whether the pointer has turned to something else than the pop-up menus of a form's window: it is neither on an open
// frame nor on a control that listens to the pointer itself.
[[nodiscard]] bool pointerIsOutsideMenus(HWND window);

}  // namespace windows
