#include "shrink.h"

#include <algorithm>

namespace monkey {
namespace {

// Tries to drop each run of `length` lines. False when none could be.
bool dropRuns(Script& script, std::size_t length, const std::function<bool(const Script&)>& fails) {
  bool dropped = false;
  for (std::size_t at = 0; at < script.size();) {
    const auto begin = script.begin() + static_cast<std::ptrdiff_t>(at);
    const auto end = script.begin() + static_cast<std::ptrdiff_t>(std::min(at + length, script.size()));
    Script shorter(script.begin(), begin);
    shorter.insert(shorter.end(), end, script.end());
    if (fails(shorter)) {
      script = std::move(shorter);
      dropped = true;
    } else {
      at += length;
    }
  }
  return dropped;
}

}  // namespace

Script shrunk(Script script, const std::function<bool(const Script&)>& fails) {
  for (std::size_t length = script.size() / 2; length > 1; length /= 2) dropRuns(script, length, fails);
  while (dropRuns(script, 1, fails)) {
  }
  return script;
}

}  // namespace monkey
