#pragma once

#include "forms/tabs.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

class TabRow;

// Tabs over a page; the controls of all pages lie in its widget, and those of the page in front are seen.
class TabControlView : public ControlView {
 public:
  TabControlView(forms::TabControl& tabs, QWidget& parent, screen::ProgramCalls& calls);
  void sync(forms::Property property) override;

  [[nodiscard]] bool isBehind() const override { return shownTab_ != tabs_.tab(); }

 private:
  forms::TabControl& tabs_;
  TabRow* row_ = nullptr;
  int shownTab_ = -1;
};

}  // namespace desktop
