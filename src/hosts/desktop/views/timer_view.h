#pragma once

#include <QTimer>

#include "forms/timer.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

// Ticks from the load of its form on. A tick that falls into a running handler waits for its end.
class TimerView : public ControlView {
 public:
  TimerView(forms::Timer& timer, screen::ProgramCalls& calls);
  void sync(forms::Property property) override;

 private:
  forms::Timer& timer_;
  QTimer clock_{this};
  bool waiting_ = false;
};

}  // namespace desktop
