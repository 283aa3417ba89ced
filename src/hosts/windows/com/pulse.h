#pragma once

#include "hosts/screen/program_calls.h"
#include "hosts/windows/win32/handles.h"

namespace windows {

// A message to this thread twice a second while a call into the program is under way: whoever waits in it for another
// process gets to look about, whether the user does something or not.
class Pulse {
 public:
  // `calls` outlives the pulse, which hears when its calls begin.
  explicit Pulse(screen::ProgramCalls& calls);
  ~Pulse();
  Pulse(const Pulse&) = delete;
  Pulse& operator=(const Pulse&) = delete;

 private:
  static void CALLBACK beat(void* window, BOOLEAN fired);
  static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM wide, LPARAM large);
  void start();
  void stop();

  screen::ProgramCalls& calls_;
  WindowHandle window_;
  HANDLE timer_ = nullptr;
};

}  // namespace windows
