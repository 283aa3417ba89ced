#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace screen {

// The one door into the program: everything that the user or a timer does enters it through `run`. A handler that ends
// the program ends the host here.
class ProgramCalls {
 public:
  using Action = std::function<void()>;

  // What happens before and after each outermost call, when the program ends, and when a failure leaves a handler that
  // has no trap (its description is shown to the user).
  Action began;
  Action returned;
  Action ended;
  std::function<void(const std::string& description)> failed;

  // Runs `action` now; nothing once the program has ended.
  void run(const Action& action);

  // Runs `action` now, or as soon as the call under way has returned. For what the user does not wait for: sizes,
  // ticks.
  void runWhenFree(Action action);

  // Does what a host has to do for itself, outside any call. A failure in it is told as one of a handler's is, but the
  // same words once only: what cannot be painted would say so again and again. Lets nothing out.
  template <class Own>
  void guard(const Own& own) noexcept {
    try {
      own();
    } catch (...) {
      tellCaught();
    }
  }

  // Whether a call is under way (a message box may be open inside it).
  [[nodiscard]] bool isBusy() const { return depth_ > 0; }
  [[nodiscard]] bool hasEnded() const { return ended_; }

 private:
  void tell(const std::string& fault) const noexcept;
  void tellCaught() noexcept;

  int depth_ = 0;
  bool ended_ = false;
  std::vector<Action> waiting_;
  std::set<std::string> toldOnce_;
};

}  // namespace screen
