#pragma once

#include <vector>

#include "hosts/windows/win32/windows_h.h"

namespace windows {

class WindowsHost;

// The program's windows while it waits for its map engine, which may have a modal box of its own in front of them.
class WaitingWindows {
 public:
  // The host outlives this.
  explicit WaitingWindows(const WindowsHost& host) : host_(host) {}

  // The windows that are always in front let the engine's be so too, until the program goes on.
  void stepAside();
  void comeBack();

  // The engine is gone, and with it any box that it has disabled the windows for: they take input again, as soon as no
  // box of the program's own is open.
  void takeInput();
  // A modal box of the program's own opens and closes; they may be nested.
  void boxOpened() { ++openBoxes_; }
  void boxClosed();

 private:
  const WindowsHost& host_;
  std::vector<HWND> aside_;
  int openBoxes_ = 0;
  bool takeInputLater_ = false;
};

}  // namespace windows
