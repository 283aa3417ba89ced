#include "hosts/windows/win32/message_window.h"

#include "hosts/windows/win32/window_class.h"

namespace windows {

WindowHandle makeMessageWindow(const wchar_t* className, WNDPROC receive, void* owner) {
  const wchar_t* kind = registered({.name = className, .receive = receive});
  WindowHandle window(
      CreateWindowExW(0, kind, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, GetModuleHandleW(nullptr), nullptr));
  SetWindowLongPtrW(window.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(owner));
  return window;
}

}  // namespace windows
