#pragma once

#include "forms/label.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

// A frame: a pop-up card where it lies on the form and holds controls, a veil where it lies there empty, and else a
// group.
class FrameView : public ControlView {
 public:
  FrameView(forms::Frame& frame, QWidget& parent, screen::ProgramCalls& calls);
  void sync(forms::Property property) override;
  [[nodiscard]] bool paintsAtOnce() const override;

 private:
  [[nodiscard]] bool isVeil() const;

  forms::Frame& frame_;
};

}  // namespace desktop
