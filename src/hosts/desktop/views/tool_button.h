#pragma once

#include <string>

#include "hosts/desktop/views/pointed_button.h"

namespace desktop {

// A button of a map toolbar: a drawing that lights up under the pointer; the tool in hand keeps a mark.
class ToolButton : public PointedButton {
 public:
  ToolButton(std::string picture, QWidget& parent);

  void setCurrent(bool current);
  [[nodiscard]] bool isCurrent() const { return current_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::string picture_;
  bool current_ = false;
};

}  // namespace desktop
