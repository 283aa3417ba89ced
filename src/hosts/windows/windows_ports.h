#pragma once

#include <string>

#include "hosts/screen/answered_engines.h"
#include "hosts/windows/ports/native_dialogs.h"
#include "hosts/windows/ports/native_files.h"
#include "hosts/windows/ports/native_messages.h"
#include "hosts/windows/ports/native_programs.h"
#include "hosts/windows/ports/native_registry.h"
#include "hosts/windows/ports/native_windows.h"
#include "hosts/windows/ports/ole_engines.h"
#include "hosts/windows/ports/waited_engines.h"
#include "platform/ports.h"

namespace windows {

// All ports of the program on Windows. OLE must have been started on the thread (OleThread).
class WindowsPorts {
 public:
  // Both outlive the ports. The folder is written with "\", without one at its end.
  WindowsPorts(WindowsHost& host, screen::ProgramCalls& calls, std::string applicationFolder);

  [[nodiscard]] platform::Ports ports();

 private:
  OleEngines oleEngines_;
  WaitedEngines waitedEngines_;
  screen::AnsweredEngines engines_;
  NativeWindows windows_;
  NativeRegistry registry_;
  NativeFiles files_;
  NativePrograms programs_;
  NativeMessages messages_;
  NativeDialogs dialogs_;
  std::string applicationFolder_;
};

}  // namespace windows
