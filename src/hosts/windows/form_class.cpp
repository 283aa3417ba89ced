#include "hosts/windows/form_class.h"

#include "hosts/windows/resources/resource_ids.h"
#include "hosts/windows/win32/window_class.h"

namespace windows {

FormStyle formStyle(screen::FormLook look) {
  switch (look) {
    case screen::FormLook::splash:
      return {WS_POPUP | WS_CLIPCHILDREN, WS_EX_TOOLWINDOW};
    case screen::FormLook::palette:
      return {WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN, WS_EX_TOOLWINDOW | WS_EX_CONTROLPARENT};
    case screen::FormLook::window:
      break;
  }
  return {WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
}

const wchar_t* formClass(WNDPROC receive) {
  const HICON icon = LoadIconW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kProgramIcon));
  return registered({.name = L"VeldoriaForm", .receive = receive, .style = CS_DBLCLKS, .icon = icon});
}

void roundCorners(HWND window, const Scale& scale) {
  constexpr double kDiameter = 28;
  RECT box{};
  GetWindowRect(window, &box);
  const int diameter = scale.of(kDiameter);
  // The window owns the region from here on.
  SetWindowRgn(window, CreateRoundRectRgn(0, 0, widthOf(box) + 1, heightOf(box) + 1, diameter, diameter), TRUE);
}

}  // namespace windows
