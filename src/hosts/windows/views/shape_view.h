#pragma once

#include "forms/shape.h"
#include "hosts/windows/views/control_view.h"

namespace windows {

// What is painted on the form itself: the pointer goes through it.
class PaintedView : public ControlView {
 public:
  using ControlView::ControlView;
  void sync(forms::Property property) override;

 protected:
  [[nodiscard]] RECT formRect() const;

 private:
  RECT painted_{};
};

// Decoration. A header reaches over the whole width of its window, whatever its own.
class ShapeView : public PaintedView {
 public:
  ShapeView(forms::Shape& shape, ViewContext& context, HWND parent);
  void paintOnForm(Canvas& canvas) const override;

 protected:
  [[nodiscard]] RECT place() const override;

 private:
  forms::Shape& shape_;
};

}  // namespace windows
