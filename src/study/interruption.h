#pragma once

#include <csignal>
#include <stdexcept>

namespace study {

// The person at the terminal wants the work to end.
struct Interrupted : std::runtime_error {
  explicit Interrupted(int number) : std::runtime_error("interrupted"), signal(number) {}
  int signal;
};

// While it lives, the signals that ask a program to end (SIGINT, SIGTERM, SIGHUP) are noted instead, so that the work
// ends where it can clean up. A second one of the same ends the program at once. One at a time.
class Interruption {
 public:
  Interruption();
  ~Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

  // Throws Interrupted once a signal has come.
  void check() const;

 private:
  struct sigaction before_[3];
};

}  // namespace study
