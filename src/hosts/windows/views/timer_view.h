#pragma once

#include "forms/timer.h"
#include "hosts/windows/views/control_view.h"

namespace windows {

// The clock behind a timer; it has no window and runs on its form's.
class TimerView : public ControlView {
 public:
  TimerView(forms::Timer& timer, ViewContext& context, HWND parent);
  ~TimerView() override;
  void sync(forms::Property property) override;
  // The clock with this id has run: true when it is this one.
  bool elapsed(UINT_PTR id) const;

 private:
  [[nodiscard]] UINT_PTR id() const { return reinterpret_cast<UINT_PTR>(this); }

  forms::Timer& timer_;
};

}  // namespace windows
