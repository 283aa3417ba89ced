#pragma once

#include "forms/label.h"
#include "hosts/windows/views/pointed_view.h"

namespace windows {

class CommandButtonView : public PointedView {
 public:
  CommandButtonView(forms::CommandButton& button, ViewContext& context, HWND parent);
  void sync(forms::Property property) override;

 protected:
  void click() override;
  void paint(Canvas& canvas, UINT state) const override;

 private:
  forms::CommandButton& button_;
};

}  // namespace windows
