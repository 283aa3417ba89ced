#pragma once

#include <string>

namespace platform {

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // The save dialog. Gives the file name chosen; cancelling gives `name` back.
  [[nodiscard]] virtual std::string save(const std::string& title, const std::string& filter,
                                         const std::string& name) = 0;

  // Shows a help file with a help command (3: its contents).
  virtual void help(const std::string& file, int command) = 0;
};

}  // namespace platform
