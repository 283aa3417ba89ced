#include "hosts/windows/form_class.h"

#include "hosts/windows/resources/resource_ids.h"

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
  static constexpr const wchar_t* kName = L"VeldoriaForm";
  static const ATOM registered = [receive] {
    const HINSTANCE program = GetModuleHandleW(nullptr);
    WNDCLASSEXW form{};
    form.cbSize = sizeof form;
    form.style = CS_DBLCLKS;
    form.lpfnWndProc = receive;
    form.hInstance = program;
    form.hIcon = LoadIconW(program, MAKEINTRESOURCEW(kProgramIcon));
    form.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    form.lpszClassName = kName;
    return RegisterClassExW(&form);
  }();
  static_cast<void>(registered);
  return kName;
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
