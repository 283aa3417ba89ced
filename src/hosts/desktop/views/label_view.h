#pragma once

#include "forms/label.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

// A label: plain text, or, where the program listens to clicks on it, something to be pointed at and clicked.
class LabelView : public ControlView {
 public:
  LabelView(forms::Label& label, QWidget& parent, screen::ProgramCalls& calls);
  void sync(forms::Property property) override;

 private:
  forms::Label& label_;
};

}  // namespace desktop
