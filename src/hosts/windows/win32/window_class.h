#pragma once

#include <string_view>

#include "hosts/windows/win32/windows_h.h"

namespace windows {

// A class of the program's own windows.
struct WindowClass {
  const wchar_t* name;
  WNDPROC receive;
  UINT style = 0;
  HICON icon = nullptr;
};

// The name of the class, which is registered from here on. One of that name that is registered already is the same one.
[[nodiscard]] const wchar_t* registered(const WindowClass& windowClass);

// Whether the window is of the class of that name, whatever its letters' case.
[[nodiscard]] bool isOfClass(HWND window, std::wstring_view name);

}  // namespace windows
