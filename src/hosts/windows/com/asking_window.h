#pragma once

#include "hosts/windows/win32/windows_h.h"

namespace windows {

// The window of another thread's that most likely waits for the user, or null: a box rather than any other window. What
// lies in front of a window of this thread and lets that take input, as a legend does, waits for nobody.
[[nodiscard]] HWND askingWindow(DWORD thread);

}  // namespace windows
