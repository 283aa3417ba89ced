#pragma once

#include <memory>

#include "forms/image.h"
#include "hosts/windows/views/pointed_view.h"
#include "hosts/windows/views/shape_view.h"

namespace windows {

// A drawing that is only looked at.
class PictureView : public PaintedView {
 public:
  PictureView(forms::Image& image, ViewContext& context, HWND parent);
  void paintOnForm(Canvas& canvas) const override;

 private:
  forms::Image& image_;
};

// A picture to click: a button of a toolbar.
class ToolButtonView : public PointedView {
 public:
  ToolButtonView(forms::Image& image, ViewContext& context, HWND parent);
  // Marks the button of the tool in hand.
  void setCurrentPicture(const std::string& picture);

 protected:
  void click() override;
  void paint(Canvas& canvas, UINT state) const override;

 private:
  forms::Image& image_;
  bool current_ = false;
};

// A button where the program listens to clicks on the image, else decoration.
[[nodiscard]] std::unique_ptr<ControlView> makeImageView(forms::Image& image, ViewContext& context, HWND parent);

}  // namespace windows
