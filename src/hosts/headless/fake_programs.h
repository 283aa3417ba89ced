#pragma once

#include <string>
#include <vector>

#include "platform/programs.h"

namespace headless {

// Starts nothing; remembers what was to be started.
class FakePrograms : public platform::Programs {
 public:
  void start(const std::string& commandLine) override { started_.push_back(commandLine); }
  void end() override { ended_ = true; }

  [[nodiscard]] const std::vector<std::string>& started() const { return started_; }
  [[nodiscard]] bool ended() const { return ended_; }

 private:
  std::vector<std::string> started_;
  bool ended_ = false;
};

}  // namespace headless
