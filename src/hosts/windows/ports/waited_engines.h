#pragma once

#include "hosts/windows/waiting_windows.h"
#include "platform/map_engine.h"

namespace windows {

// Engines that the program's windows wait for: whenever the program goes on, after a call or in a callback, they stand
// as it has put them; and what an engine has disabled takes input again when the engine is gone or let go of.
class WaitedEngines : public platform::MapEngines {
 public:
  // Both outlive this, and the engines created.
  WaitedEngines(platform::MapEngines& engines, WaitingWindows& windows) : engines_(engines), windows_(windows) {}

  [[nodiscard]] std::shared_ptr<platform::MapEngine> create(const std::string& programId) override;

 private:
  platform::MapEngines& engines_;
  WaitingWindows& windows_;
};

}  // namespace windows
