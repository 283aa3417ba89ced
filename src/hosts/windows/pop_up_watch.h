#pragma once

#include <optional>

#include "hosts/windows/win32/windows_h.h"

namespace windows {

// Tells whether the user of a form's window is still at its pop-up menus: with the pointer, or with the keyboard from
// when it is used to get about until the pointer is used again.
class PopUpWatch {
 public:
  // The keyboard is used: a pointer that rests from here on does not count.
  void keyboardUsed();
  // The pointer is used, where it stands.
  void pointerUsed();
  [[nodiscard]] bool pointerRests();

  // Whether the user has turned to something else than the menus of `form`: neither to an open frame nor to a control
  // that listens to the pointer itself.
  [[nodiscard]] bool userIsOutside(HWND form);

 private:
  std::optional<POINT> rest_;  // where the pointer was when the keyboard was used
};

// The window of the label from which a pop-up frame's window hangs: the one at whose lower edge the frame begins. Null
// for other windows, and when there is none.
[[nodiscard]] HWND labelOfPopUp(HWND frame);

}  // namespace windows
