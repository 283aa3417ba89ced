#include "hosts/desktop/views/timer_view.h"

namespace desktop {

TimerView::TimerView(forms::Timer& timer, screen::ProgramCalls& calls) : ControlView(timer, calls), timer_(timer) {
  connect(&clock_, &QTimer::timeout, this, [this] {
    if (waiting_) return;
    waiting_ = true;
    actWhenFree([this] {
      waiting_ = false;
      timer_.elapse();
    });
  });
}

void TimerView::sync(forms::Property property) {
  if (property != forms::Property::Enabled) return;
  if (timer_.enabled() && timer_.interval > 0) {
    clock_.start(timer_.interval);
  } else {
    clock_.stop();
  }
}

}  // namespace desktop
