#pragma once

#include "forms/option_button.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

// One of several choices; it acts when the mouse button, or the space bar, is released on it, or an arrow key
// leads to it.
class OptionView : public ControlView {
 public:
  OptionView(forms::OptionButton& option, QWidget& parent, screen::ProgramCalls& calls);
  void sync(forms::Property property) override;

 private:
  forms::OptionButton& option_;
};

}  // namespace desktop
