#pragma once

#include <string>

#include "hosts/windows/win32/windows_h.h"

namespace windows {

// A window's text, in UTF-8.
[[nodiscard]] std::string textOf(HWND window);

}  // namespace windows
