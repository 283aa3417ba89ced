#include "hosts/windows/win32/message_window.h"

namespace windows {

// A class that is registered already is the same one.
WindowHandle makeMessageWindow(const wchar_t* className, WNDPROC receive, void* owner) {
  const HINSTANCE program = GetModuleHandleW(nullptr);
  WNDCLASSEXW kind{};
  kind.cbSize = sizeof kind;
  kind.lpfnWndProc = receive;
  kind.hInstance = program;
  kind.lpszClassName = className;
  RegisterClassExW(&kind);
  WindowHandle window(CreateWindowExW(0, className, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, program, nullptr));
  SetWindowLongPtrW(window.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(owner));
  return window;
}

}  // namespace windows
