#pragma once

#include <QAbstractButton>

namespace desktop {

// What the program's own buttons share: they light up under the pointer, Enter clicks them as the space bar does, the
// arrow keys go to their neighbours, and a ring shows where the keyboard is once it has been used to get there.
class PointedButton : public QAbstractButton {
 public:
  explicit PointedButton(QWidget& parent);

 protected:
  [[nodiscard]] bool isLit() const { return underMouse() || hasRing_; }
  [[nodiscard]] bool hasRing() const { return hasRing_; }

  void keyPressEvent(QKeyEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  bool hasRing_ = false;
};

}  // namespace desktop
