#pragma once

#include <string>

#include "hosts/windows/win32/windows_h.h"

namespace wintest {

// What a process holds of the system.
struct ProcessCounts {
  LRESULT handles = 0;
  LRESULT memoryBlocks = 0;    // the program's own, texts of OLE, objects
  LRESULT drawingObjects = 0;  // of this process only
  LRESULT windows = 0;         // top-level and message-only ones

  [[nodiscard]] static ProcessCounts ofThisProcess();
  // The process of the engine that is alive.
  [[nodiscard]] static ProcessCounts ofServer();

  // What has grown by more than the system keeps for later calls, in words; empty when nothing has. Whatever is lost
  // has to be lost some hundred times to be told from that.
  [[nodiscard]] std::string lostSince(const ProcessCounts& before) const;
};

std::ostream& operator<<(std::ostream& out, const ProcessCounts& counts);

// The process of a window.
[[nodiscard]] DWORD processOf(HWND window);

}  // namespace wintest
