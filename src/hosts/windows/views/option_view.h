#pragma once

#include "forms/option_button.h"
#include "hosts/windows/views/control_view.h"

namespace windows {

// One of several choices; the arrow keys choose its neighbours.
class OptionView : public ControlView {
 public:
  OptionView(forms::OptionButton& option, ViewContext& context, HWND parent);
  void sync(forms::Property property) override;
  void commanded(WORD code) override;

 protected:
  [[nodiscard]] std::optional<LRESULT> handle(UINT message, WPARAM wide, LPARAM large) override;

 private:
  void chooseNeighbour(int step) const;

  forms::OptionButton& option_;
};

}  // namespace windows
