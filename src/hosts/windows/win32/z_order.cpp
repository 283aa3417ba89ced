#include "hosts/windows/win32/z_order.h"

#include <vector>

namespace windows {
namespace {

constexpr UINT kInPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;

struct Gathering {
  HWND owner;
  std::vector<HWND> found;
};

BOOL CALLBACK gather(HWND window, LPARAM into) {
  auto& gathering = *reinterpret_cast<Gathering*>(into);
  if (GetWindow(window, GW_OWNER) == gathering.owner && isTopmost(window)) gathering.found.push_back(window);
  return TRUE;
}

std::vector<HWND> topmostOwnedBy(HWND owner) {
  Gathering gathering{owner, {}};
  EnumThreadWindows(GetCurrentThreadId(), gather, reinterpret_cast<LPARAM>(&gathering));
  return gathering.found;
}

}  // namespace

bool isTopmost(HWND window) { return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }

void setTopmost(HWND window, bool topmost, UINT flags) {
  const std::vector<HWND> owned = topmostOwnedBy(window);
  SetWindowPos(window, topmost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0, flags);
  for (const HWND each : owned) {
    if (!isTopmost(each)) SetWindowPos(each, HWND_TOPMOST, 0, 0, 0, 0, kInPlace);
  }
}

}  // namespace windows
