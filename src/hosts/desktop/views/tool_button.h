#pragma once

#include <string>

#include "hosts/desktop/views/pointed_button.h"

namespace desktop {

// A button of a toolbar: a drawing that lights up under the pointer; the tool in hand keeps a mark. A toolbar is one
// stop of the keyboard: the arrow keys go from button to button and around its ends, Home and End to the first and the
// last.
class ToolButton : public PointedButton {
 public:
  ToolButton(std::string picture, QWidget& parent);

  void setCurrent(bool current);
  [[nodiscard]] bool isCurrent() const { return current_; }
  // When the keyboard came here last, as a number that grows with each entry into a button; 0: never.
  [[nodiscard]] int lastEntered() const { return lastEntered_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  std::string picture_;
  bool current_ = false;
  int lastEntered_ = 0;
};

}  // namespace desktop
