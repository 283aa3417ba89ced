#include "hosts/screen/program_calls.h"

#include <exception>
#include <utility>

#include "platform/programs.h"

namespace screen {
namespace {

// What the exception that is being handled says to the user.
std::string caughtWords() {
  try {
    throw;
  } catch (const std::exception& fault) {  // a Failure among them
    return fault.what();
  } catch (...) {
    return "Error desconocido.";
  }
}

}  // namespace

void ProgramCalls::run(const Action& action) {
  if (ended_) return;
  if (!isBusy() && began) began();
  ++depth_;
  try {
    action();
  } catch (const platform::ProgramEnd&) {
    ended_ = true;
  } catch (...) {
    tell(caughtWords());
  }
  --depth_;
  if (depth_ > 0) return;
  if (ended_) {
    waiting_.clear();
    if (ended) ended();
    return;
  }
  if (returned) returned();
  for (const Action& next : std::exchange(waiting_, {})) run(next);
}

void ProgramCalls::tell(const std::string& fault) const noexcept {
  try {
    if (failed) failed(fault);
  } catch (...) {
    // There is nobody left to tell.
  }
}

// A call of its own: nothing else enters the program while the user reads.
void ProgramCalls::tellCaught() noexcept {
  try {
    const std::string words = caughtWords();
    if (toldOnce_.insert(words).second) run([&] { tell(words); });
  } catch (...) {
    // Its words cannot even be kept.
  }
}

void ProgramCalls::runWhenFree(Action action) {
  if (isBusy()) {
    waiting_.push_back(std::move(action));
  } else {
    run(action);
  }
}

}  // namespace screen
