#pragma once

#include <vector>

#include "hosts/windows/win32/windows_h.h"

namespace windows {

// The windows within a form's window that take the keyboard now, in reading order: part by part as the parts stand on
// the form, and in each row by row; the entries of an open pop-up menu follow its label. Of the option buttons of a
// group only the chosen one, or the first, is among them.
[[nodiscard]] std::vector<HWND> keyboardOrder(HWND form);

// The window after (or before) `from`, or the one around it, round the ends; null when there is none.
[[nodiscard]] HWND nextForKeyboard(HWND form, HWND from, bool next);

}  // namespace windows
