#pragma once

#include <vector>

#include "hosts/windows/win32/windows_h.h"

namespace windows {

class LongWork;
class WaitingWindows;
class WindowsHost;

// The time of a modal box: the program's windows other than the one that the box lies in front of take no input. What
// was pressed before, while the program did not answer, does not answer the box.
class ModalTime {
 public:
  explicit ModalTime(const WindowsHost& host);
  ~ModalTime();
  ModalTime(const ModalTime&) = delete;
  ModalTime& operator=(const ModalTime&) = delete;

  // What the box is to lie in front of; null when the program has no window.
  [[nodiscard]] HWND owner() const { return owner_; }

 private:
  WaitingWindows& windows_;
  LongWork* work_;  // that the box interrupts, or null
  HWND owner_;
  std::vector<HWND> disabled_;
};

}  // namespace windows
