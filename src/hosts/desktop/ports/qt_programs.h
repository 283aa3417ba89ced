#pragma once

#include <string>
#include <vector>

#include "hosts/desktop/ports/known_programs.h"
#include "platform/programs.h"

namespace desktop {

// Starts the user's own browser or reader in place of the program that a command line names.
class QtPrograms : public platform::Programs {
 public:
  // `programs` outlives this.
  explicit QtPrograms(DesktopPrograms& programs) : programs_(programs) {}

  // Fails with 53 when the command line names no known program, or the desktop has nothing for the document.
  void start(const std::string& commandLine) override;
  // Nothing is left to do: the end of the program reaches the host by itself.
  void end() override {}

 private:
  DesktopPrograms& programs_;
};

// The words of a command line; double quotes hold blanks.
[[nodiscard]] std::vector<std::string> commandWords(const std::string& commandLine);

}  // namespace desktop
