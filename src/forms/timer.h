#pragma once

#include "forms/control.h"

namespace forms {

// A timer: the host raises Tick every `interval` milliseconds while it is enabled and its form is loaded.
class Timer : public Control {
 public:
  using Control::Control;

  int interval = 0;  // milliseconds; part of the definition
  Event<> Tick;
  // The time has come; nothing while it is disabled or its form is not loaded.
  void elapse();
};

}  // namespace forms
