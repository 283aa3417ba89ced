#include "hosts/windows/views/pane_class.h"

#include "hosts/windows/win32/windows_h.h"

namespace windows {

const wchar_t* paneClass() {
  static constexpr const wchar_t* kName = L"VeldoriaPane";
  static const ATOM registered = [] {
    WNDCLASSEXW pane{};
    pane.cbSize = sizeof pane;
    pane.lpfnWndProc = DefWindowProcW;
    pane.hInstance = GetModuleHandleW(nullptr);
    pane.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    pane.lpszClassName = kName;
    return RegisterClassExW(&pane);
  }();
  static_cast<void>(registered);
  return kName;
}

}  // namespace windows
