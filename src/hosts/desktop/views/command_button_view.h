#pragma once

#include "forms/label.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

class CommandButtonView : public ControlView {
 public:
  CommandButtonView(forms::CommandButton& button, QWidget& parent, screen::ProgramCalls& calls);
  void sync(forms::Property property) override;

 private:
  forms::CommandButton& button_;
};

}  // namespace desktop
