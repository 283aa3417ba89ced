#include "hosts/windows/windows_ports.h"

#include <utility>

#include "hosts/windows/windows_host.h"

namespace windows {

WindowsPorts::WindowsPorts(WindowsHost& host, screen::ProgramCalls& calls, std::string applicationFolder)
    : waitedEngines_(oleEngines_, host.waitingWindows()),
      engines_(waitedEngines_, calls),
      messages_(host),
      dialogs_(host),
      applicationFolder_(std::move(applicationFolder)) {}

platform::Ports WindowsPorts::ports() {
  return {engines_, windows_, registry_, files_, programs_, messages_, dialogs_, applicationFolder_};
}

}  // namespace windows
