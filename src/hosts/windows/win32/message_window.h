#pragma once

#include "hosts/windows/win32/handles.h"

namespace windows {

// A window that only gets messages, which go to `receive` with `owner` as the window's user data. Class names are told
// apart by the letters.
[[nodiscard]] WindowHandle makeMessageWindow(const wchar_t* className, WNDPROC receive, void* owner);

// The owner of such a window; null when it is being made or has none any more.
template <class Owner>
[[nodiscard]] Owner* ownerOf(HWND window) {
  return reinterpret_cast<Owner*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

}  // namespace windows
