#include "hosts/windows/views/pane_class.h"

#include "hosts/windows/win32/window_class.h"

namespace windows {

const wchar_t* paneClass() { return registered({.name = L"VeldoriaPane", .receive = DefWindowProcW}); }

}  // namespace windows
