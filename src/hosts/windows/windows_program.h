#pragma once

#include <memory>
#include <string>

#include "atlas/atlas.h"
#include "hosts/windows/com/busy_engine.h"
#include "hosts/windows/com/ole_thread.h"
#include "hosts/windows/drawing/graphics_time.h"
#include "hosts/windows/windows_host.h"
#include "hosts/windows/windows_ports.h"

namespace windows {

// The program on the user's Windows: the atlas, its windows and the outside map engine. A program that shows the same
// with a recorder in between puts it together in the same order from OleThread, GraphicsTime, ProgramCalls,
// WindowsHost, BusyEngine, WindowsPorts and Atlas.
class WindowsProgram {
 public:
  explicit WindowsProgram(const std::string& applicationFolder);
  ~WindowsProgram();
  WindowsProgram(const WindowsProgram&) = delete;
  WindowsProgram& operator=(const WindowsProgram&) = delete;

  // Shows the splash and runs the thread's messages until the program ends: at once, or with its last window.
  void run();

 private:
  OleThread ole_;
  GraphicsTime graphics_;
  screen::ProgramCalls calls_;
  WindowsHost host_{calls_};
  BusyEngine busyEngine_{host_};
  WindowsPorts ports_;
  std::unique_ptr<atlas::Atlas> atlas_;
};

// The folder of the program's own executable, in UTF-8, without a "\" at its end.
[[nodiscard]] std::string executableFolder();

}  // namespace windows
