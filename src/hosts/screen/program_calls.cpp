#include "hosts/screen/program_calls.h"

#include <exception>
#include <utility>

#include "platform/programs.h"
#include "text/failure.h"

namespace screen {

void ProgramCalls::run(const Action& action) {
  if (ended_) return;
  if (!isBusy() && began) began();
  ++depth_;
  try {
    action();
  } catch (const platform::ProgramEnd&) {
    ended_ = true;
  } catch (const Failure& failure) {
    tell(failure.description());
  } catch (const std::exception& fault) {
    tell(fault.what());
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

void ProgramCalls::tell(const std::string& fault) const {
  if (failed) failed(fault);
}

void ProgramCalls::runWhenFree(Action action) {
  if (isBusy()) {
    waiting_.push_back(std::move(action));
  } else {
    run(action);
  }
}

}  // namespace screen
