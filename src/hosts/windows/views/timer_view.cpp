#include "hosts/windows/views/timer_view.h"

namespace windows {

TimerView::TimerView(forms::Timer& timer, ViewContext& context, HWND parent)
    : ControlView(timer, context, parent), timer_(timer) {}

TimerView::~TimerView() { KillTimer(context().form, id()); }

void TimerView::sync(forms::Property property) {
  if (property != forms::Property::Enabled) return;
  KillTimer(context().form, id());
  if (timer_.enabled() && timer_.interval > 0) {
    SetTimer(context().form, id(), static_cast<UINT>(timer_.interval), nullptr);
  }
}

bool TimerView::elapsed(UINT_PTR clock) const {
  if (clock != id()) return false;
  forms::Timer& timer = timer_;
  context().queue.postWhenFree([&timer] { timer.elapse(); });
  return true;
}

}  // namespace windows
