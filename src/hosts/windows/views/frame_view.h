#pragma once

#include "forms/label.h"
#include "hosts/windows/views/control_view.h"

namespace windows {

// A frame: a pop-up card where it lies on the form and holds controls, a sheet over the map where it lies there empty,
// and else a group.
class FrameView : public ControlView {
 public:
  FrameView(forms::Frame& frame, ViewContext& context, HWND parent);
  [[nodiscard]] bool paintsAtOnce() const override { return look_ == Look::sheet; }
  [[nodiscard]] forms::Color surface() const override;

 protected:
  [[nodiscard]] std::optional<LRESULT> handle(UINT message, WPARAM wide, LPARAM large) override;
  void paint(Canvas& canvas, UINT state) const override;

 private:
  enum class Look { group, popUp, sheet };
  [[nodiscard]] static Look lookOf(const forms::Frame& frame);

  forms::Frame& frame_;
  Look look_;
};

}  // namespace windows
