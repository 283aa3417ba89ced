#pragma once

#include "forms/text_box.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

// A box to type into; a locked one is a notice, painted at once when it appears in a long handler.
class TextBoxView : public ControlView {
 public:
  TextBoxView(forms::TextBox& box, QWidget& parent, screen::ProgramCalls& calls);
  void sync(forms::Property property) override;
  [[nodiscard]] bool paintsAtOnce() const override { return box_.locked; }

 private:
  forms::TextBox& box_;
};

}  // namespace desktop
