#include "hosts/windows/win32/window_class.h"

#include <array>

namespace windows {

const wchar_t* registered(const WindowClass& windowClass) {
  WNDCLASSEXW system{};
  system.cbSize = sizeof system;
  system.style = windowClass.style;
  system.lpfnWndProc = windowClass.receive;
  system.hInstance = GetModuleHandleW(nullptr);
  system.hIcon = windowClass.icon;
  system.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  system.lpszClassName = windowClass.name;
  RegisterClassExW(&system);
  return windowClass.name;
}

bool isOfClass(HWND window, std::wstring_view name) {
  std::array<wchar_t, 64> actual{};
  const int length = GetClassNameW(window, actual.data(), static_cast<int>(actual.size()));
  return CompareStringOrdinal(actual.data(), length, name.data(), static_cast<int>(name.size()), TRUE) == CSTR_EQUAL;
}

}  // namespace windows
