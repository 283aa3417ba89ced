#include "hosts/desktop/views/pointed_button.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSinglePointEvent>

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

// The toolkit's own word for it can be out of date: a window that is covered or minimised is not always left.
void PointedButton::setPointedAt(bool pointedAt) {
  if (pointedAt == isPointedAt_) return;
  isPointedAt_ = pointedAt;
  if (pointedAt) {
    qApp->installEventFilter(this);
  } else {
    qApp->removeEventFilter(this);
  }
  update();
}

bool PointedButton::eventFilter(QObject* watched, QEvent* event) {
  const auto* widget = qobject_cast<const QWidget*>(watched);
  if (widget == nullptr) return false;
  switch (event->type()) {
    case QEvent::Enter:
    case QEvent::MouseMove: {
      const QPointF at = static_cast<const QSinglePointEvent*>(event)->globalPosition();
      if (widget->window() != window() || !rect().contains(mapFromGlobal(at).toPoint())) setPointedAt(false);
      break;
    }
    case QEvent::Leave:
    case QEvent::Hide:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
      if (widget == window()) setPointedAt(false);
      break;
    default:
      break;
  }
  return false;
}

void PointedButton::mouseMoveEvent(QMouseEvent* event) {
  setPointedAt(rect().contains(event->position().toPoint()));
  QAbstractButton::mouseMoveEvent(event);
}

// Who double-clicks a link does not want its document twice.
void PointedButton::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

void PointedButton::enterEvent(QEnterEvent* event) {
  setPointedAt(true);
  QAbstractButton::enterEvent(event);
}

void PointedButton::leaveEvent(QEvent* event) {
  setPointedAt(false);
  QAbstractButton::leaveEvent(event);
}

void PointedButton::focusInEvent(QFocusEvent* event) {
  ring_.focusIn(*event);
  QAbstractButton::focusInEvent(event);
}

void PointedButton::focusOutEvent(QFocusEvent* event) {
  ring_.focusOut(*event);
  QAbstractButton::focusOutEvent(event);
}

}  // namespace desktop
