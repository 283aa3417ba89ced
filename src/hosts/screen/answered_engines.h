#pragma once

#include "hosts/screen/program_calls.h"
#include "platform/map_engine.h"

namespace screen {

// Engines whose callbacks enter the program through its one door, like everything else that the user does: what a
// handler shows while it works is painted, and nothing else enters the program meanwhile.
class AnsweredEngines : public platform::MapEngines {
 public:
  // Both outlive this, and the engines created.
  AnsweredEngines(platform::MapEngines& engines, ProgramCalls& calls) : engines_(engines), calls_(calls) {}

  [[nodiscard]] std::shared_ptr<platform::MapEngine> create(const std::string& programId) override;

 private:
  platform::MapEngines& engines_;
  ProgramCalls& calls_;
};

}  // namespace screen
