#pragma once

#include "forms/shape.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

// Decoration; the pointer goes through it. A header reaches over the whole width of its window, whatever its own.
class ShapeView : public ControlView {
 public:
  ShapeView(forms::Shape& shape, QWidget& parent, screen::ProgramCalls& calls);
  void sync(forms::Property property) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void spanParent();

  bool isHeader_;
};

}  // namespace desktop
