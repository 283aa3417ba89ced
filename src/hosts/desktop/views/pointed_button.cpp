#include "hosts/desktop/views/pointed_button.h"

#include <QKeyEvent>

#include "hosts/desktop/keyboard_focus.h"

namespace desktop {

PointedButton::PointedButton(QWidget& parent) : QAbstractButton(&parent) { setFocusPolicy(Qt::TabFocus); }

void PointedButton::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      click();
      break;
    case Qt::Key_Down:
    case Qt::Key_Right:
      focusNextChild();
      break;
    case Qt::Key_Up:
    case Qt::Key_Left:
      focusPreviousChild();
      break;
    default:
      QAbstractButton::keyPressEvent(event);
  }
}

void PointedButton::enterEvent(QEnterEvent* event) {
  update();
  QAbstractButton::enterEvent(event);
}

void PointedButton::leaveEvent(QEvent* event) {
  update();
  QAbstractButton::leaveEvent(event);
}

void PointedButton::focusInEvent(QFocusEvent* event) {
  hasRing_ = isKeyboardFocus(*event);
  QAbstractButton::focusInEvent(event);
}

void PointedButton::focusOutEvent(QFocusEvent* event) {
  hasRing_ = false;
  QAbstractButton::focusOutEvent(event);
}

}  // namespace desktop
