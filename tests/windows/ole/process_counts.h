#pragma once

#include "hosts/windows/win32/windows_h.h"

namespace wintest {

// What a process holds of the system.
struct ProcessCounts {
  LRESULT nextHandle = 0;    // its place: it rises as handles are lost
  DWORD drawingObjects = 0;  // of this process only
  DWORD windows = 0;         // top-level and message-only ones

  [[nodiscard]] static ProcessCounts ofThisProcess();
  // The process of the engine that is alive.
  [[nodiscard]] static ProcessCounts ofServer();
};

// The process of a window.
[[nodiscard]] DWORD processOf(HWND window);

}  // namespace wintest
