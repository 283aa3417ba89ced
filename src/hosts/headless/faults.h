#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/failure.h"

namespace headless {

// A failure by its number, with the description that goes with it, or another one.
[[nodiscard]] Failure failureNumbered(int number, const std::string& description = "");

// Failures that wait for effects; each happens once.
class Faults {
 public:
  // The next effect whose line, up to its result, matches the pattern ("*" is a wildcard) fails.
  void failNext(const std::string& pattern, const Failure& failure);
  // The engine call of this number fails; the next one is number 1.
  void failEngineCall(int number, const Failure& failure);

  // The failure that an effect is to have, if any. `isEngineCall` counts it among the engine's.
  [[nodiscard]] std::optional<Failure> take(std::string_view line, bool isEngineCall);

  [[nodiscard]] int engineCalls() const { return engineCalls_; }

 private:
  struct ByLine {
    std::string pattern;
    Failure failure;
  };
  struct ByNumber {
    int number;
    Failure failure;
  };

  std::vector<ByLine> byLine_;
  std::vector<ByNumber> byNumber_;
  int engineCalls_ = 0;
};

}  // namespace headless
