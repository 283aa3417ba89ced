#pragma once

#include <string>
#include <thread>
#include <vector>

#include "hosts/windows/win32/windows_h.h"

namespace wintest {

// Top-level windows that are none of the program's own: on a thread of their own, which handles their messages.
class OtherPrograms {
 public:
  OtherPrograms() = default;
  ~OtherPrograms();
  OtherPrograms(const OtherPrograms&) = delete;
  OtherPrograms& operator=(const OtherPrograms&) = delete;

  // Opens a window; it closes when asked to. Returns when it is there.
  void openWindow(const std::string& title);

 private:
  struct Other {
    std::thread thread;
    DWORD id = 0;
  };
  std::vector<Other> others_;
};

}  // namespace wintest
