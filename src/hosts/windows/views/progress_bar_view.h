#pragma once

#include "forms/progress_bar.h"
#include "hosts/windows/views/control_view.h"

namespace windows {

class ProgressBarView : public ControlView {
 public:
  ProgressBarView(forms::ProgressBar& bar, ViewContext& context, HWND parent);
  void sync(forms::Property property) override;
  [[nodiscard]] bool paintsAtOnce() const override { return true; }

 protected:
  [[nodiscard]] std::optional<LRESULT> handle(UINT message, WPARAM wide, LPARAM large) override;
  void paint(Canvas& canvas, UINT state) const override;

 private:
  forms::ProgressBar& bar_;
};

}  // namespace windows
