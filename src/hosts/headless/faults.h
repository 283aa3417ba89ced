#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/failure.h"

namespace headless {

// A failure by its number, with the description that goes with it, or another one.
[[nodiscard]] Failure failureNumbered(int number, const std::string& description = "");

// Whose an effect is: the map engine's, the machine's around it (registry, files, programs), the desktop's windows, the
// dialogs' (message boxes among them), or any other.
enum class CallKind { other, engine, machine, windows, dialogs };

// Failures that wait for effects; each happens once.
class Faults {
 public:
  // The next effect whose line, up to its result, matches the pattern ("*" is a wildcard) fails.
  void failNext(const std::string& pattern, const Failure& failure);
  // The call of this number among those of its kind fails; the next one is number 1.
  void failCall(CallKind kind, int number, const Failure& failure);

  // The failure that an effect is to have, if any.
  [[nodiscard]] std::optional<Failure> take(std::string_view line, CallKind kind = CallKind::other);

  // How many effects of the kind there were.
  [[nodiscard]] int calls(CallKind kind) const;

 private:
  struct ByLine {
    std::string pattern;
    Failure failure;
  };
  struct ByNumber {
    CallKind kind;
    int number;
    Failure failure;
  };

  std::vector<ByLine> byLine_;
  std::vector<ByNumber> byNumber_;
  std::map<CallKind, int> calls_;
};

}  // namespace headless
