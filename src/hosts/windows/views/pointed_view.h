#pragma once

#include "hosts/windows/views/control_view.h"

namespace windows {

// What the program's own buttons share: native buttons that we draw, which light up under the pointer, are clicked by
// the space bar and Enter too, and say where the keyboard is once it has been used to get there.
class PointedView : public ControlView {
 public:
  using ControlView::ControlView;
  void commanded(WORD code) override;

 protected:
  void createButton();
  [[nodiscard]] bool isPointedAt() const { return pointedAt_; }
  // Whether the ring around what has the keyboard is to be seen.
  [[nodiscard]] bool hasRing(UINT state) const { return (state & ODS_FOCUS) != 0 && context().keyboardUsed; }
  [[nodiscard]] bool isLit(UINT state) const { return pointedAt_ || hasRing(state); }
  virtual void click() = 0;

  [[nodiscard]] std::optional<LRESULT> handle(UINT message, WPARAM wide, LPARAM large) override;

 private:
  void setPointedAt(bool pointedAt);
  bool pointedAt_ = false;
};

}  // namespace windows
