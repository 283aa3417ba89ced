#include "study/interruption.h"

#include <array>
#include <cstddef>

namespace study {

namespace {

constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP};
volatile std::sig_atomic_t received = 0;

void note(int number) { received = number; }

}  // namespace

Interruption::Interruption() {
  received = 0;
  struct sigaction action = {};
  action.sa_handler = note;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  sigemptyset(&action.sa_mask);
  for (std::size_t i = 0; i < kSignals.size(); ++i) sigaction(kSignals[i], &action, &before_[i]);
}

Interruption::~Interruption() {
  for (std::size_t i = 0; i < kSignals.size(); ++i) sigaction(kSignals[i], &before_[i], nullptr);
}

void Interruption::check() const {
  if (received != 0) throw Interrupted(received);
}

}  // namespace study
