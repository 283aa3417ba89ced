#pragma once

#include "forms/tabs.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

class TabStripView : public ControlView {
 public:
  TabStripView(forms::TabStrip& strip, QWidget& parent, screen::ProgramCalls& calls);
  void sync(forms::Property property) override;

 private:
  forms::TabStrip& strip_;
};

}  // namespace desktop
