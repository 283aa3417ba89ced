#pragma once

#include <string>

namespace platform {

// Ends the program at once: no handler's trap catches it, no unload handler runs.
struct ProgramEnd {};

class Programs {
 public:
  virtual ~Programs() = default;

  // Starts a program from a command line with a normal, focused window and does not wait for it. Fails with 53 when the
  // program is not there.
  virtual void start(const std::string& commandLine) = 0;

  // Tells the host that the program is ending; the caller then throws ProgramEnd.
  virtual void end() = 0;
};

}  // namespace platform
