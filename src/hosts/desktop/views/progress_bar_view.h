#pragma once

#include "forms/progress_bar.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

class ProgressBarView : public ControlView {
 public:
  ProgressBarView(forms::ProgressBar& bar, QWidget& parent, screen::ProgramCalls& calls);
  void sync(forms::Property property) override;
  [[nodiscard]] bool paintsAtOnce() const override { return true; }

 private:
  forms::ProgressBar& bar_;
};

}  // namespace desktop
