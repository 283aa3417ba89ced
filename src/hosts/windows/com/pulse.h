#pragma once

#include "hosts/windows/win32/handles.h"

namespace windows {

class WindowsHost;

// A message to this thread twice a second while a call into the program is under way, and when it ends: whoever waits
// in it for another process gets to look about, whether the user does something or not.
class Pulse {
 public:
  // The host outlives the pulse, which hears when its work begins.
  explicit Pulse(WindowsHost& host);
  ~Pulse();
  Pulse(const Pulse&) = delete;
  Pulse& operator=(const Pulse&) = delete;

 private:
  static void CALLBACK beat(void* window, BOOLEAN fired);
  static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM wide, LPARAM large);
  void start();
  void stop();

  WindowsHost& host_;
  WindowHandle window_;
  HANDLE timer_ = nullptr;
};

}  // namespace windows
