#pragma once

#include <memory>

#include "forms/label.h"
#include "hosts/screen/looks.h"
#include "hosts/windows/views/pointed_view.h"

namespace windows {

// A label that says something.
class PlainLabelView : public ControlView {
 public:
  PlainLabelView(forms::Label& label, ViewContext& context, HWND parent);
  void sync(forms::Property property) override;

 protected:
  void paint(Canvas& canvas, UINT state) const override;

 private:
  forms::Label& label_;
};

// A label to click: an entry of the menu on the header, of one of its pop-up frames, or a link in the window.
class LinkLabelView : public PointedView {
 public:
  LinkLabelView(forms::Label& label, ViewContext& context, HWND parent);
  void sync(forms::Property property) override;

 protected:
  void click() override;
  void paint(Canvas& canvas, UINT state) const override;

 private:
  [[nodiscard]] RECT lightRect() const;

  forms::Label& label_;
  screen::LabelLook look_;
};

[[nodiscard]] std::unique_ptr<ControlView> makeLabelView(forms::Label& label, ViewContext& context, HWND parent);

}  // namespace windows
