#pragma once

#include <memory>

#include "forms/text_box.h"
#include "hosts/windows/views/control_view.h"

namespace windows {

// A box to type into.
class TextBoxView : public ControlView {
 public:
  TextBoxView(forms::TextBox& box, ViewContext& context, HWND parent);
  void sync(forms::Property property) override;
  void commanded(WORD code) override;

 private:
  forms::TextBox& box_;
  bool quiet_ = false;  // the program writes
};

// A text to wait by: a tall one covers what lies under it, a small one stands out on it.
class NoticeView : public ControlView {
 public:
  NoticeView(forms::TextBox& box, ViewContext& context, HWND parent);
  void sync(forms::Property property) override;
  [[nodiscard]] bool paintsAtOnce() const override { return true; }

 protected:
  void paint(Canvas& canvas, UINT state) const override;

 private:
  forms::TextBox& box_;
};

// A notice where the box takes no text.
[[nodiscard]] std::unique_ptr<ControlView> makeTextBoxView(forms::TextBox& box, ViewContext& context, HWND parent);

}  // namespace windows
