#pragma once

#include <QAbstractButton>

#include "hosts/desktop/keyboard_focus.h"

namespace desktop {

// What the program's own buttons share: they light up under the pointer, a double click is one click, Enter clicks them
// as the space bar does, the arrow keys go to their neighbours, and a ring shows where the keyboard is once it has been
// used to get there.
class PointedButton : public QAbstractButton {
 public:
  explicit PointedButton(QWidget& parent);

 protected:
  [[nodiscard]] bool isLit() const { return isPointedAt_ || hasRing(); }
  [[nodiscard]] bool hasRing() const { return ring_.isShown(); }

  // While the button is lit by the pointer: everything that tells that the pointer is elsewhere.
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void setPointedAt(bool pointedAt);

  bool isPointedAt_ = false;
  KeyboardRing ring_;
};

}  // namespace desktop
