#pragma once

#include "platform/programs.h"

namespace windows {

// Programs started from their command line with a normal, focused window.
class NativePrograms : public platform::Programs {
 public:
  void start(const std::string& commandLine) override;
  // Nothing: the end of the program leaves through ProgramCalls.
  void end() override {}
};

}  // namespace windows
