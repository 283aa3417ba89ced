#include "hosts/desktop/user_hands.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace desktop::hands {
namespace {

constexpr int kDragSteps = 8;

void send(QWidget& widget, QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons) {
  QMouseEvent event(type, at, widget.mapToGlobal(at), button, buttons, Qt::NoModifier);
  QCoreApplication::sendEvent(&widget, &event);
}

}  // namespace

void click(QWidget& widget, QPoint at) {
  const QPointer<QWidget> alive(&widget);
  send(widget, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
  if (alive != nullptr) send(widget, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
  settle();
}

void click(QWidget& widget) { click(widget, widget.rect().center()); }

void doubleClick(QWidget& widget) {
  send(widget, QEvent::MouseButtonDblClick, widget.rect().center(), Qt::LeftButton, Qt::LeftButton);
  settle();
}

void drag(QWidget& widget, QPoint from, QPoint to) {
  const QPointer<QWidget> alive(&widget);
  send(widget, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
  for (int step = 1; step <= kDragSteps && alive != nullptr; ++step) {
    send(widget, QEvent::MouseMove, from + (to - from) * step / kDragSteps, Qt::NoButton, Qt::LeftButton);
  }
  if (alive != nullptr) send(widget, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
  settle();
}

void askForMenu(QWidget& widget, QPoint at) {
  QContextMenuEvent event(QContextMenuEvent::Mouse, at, widget.mapToGlobal(at));
  QCoreApplication::sendEvent(&widget, &event);
  settle();
}

void pointAt(QWidget& widget) { pointAt(widget, widget.rect().center()); }

void pointAt(QWidget& widget, QPoint at) {
  send(widget, QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton);
  settle();
}

void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, modifiers);
    QCoreApplication::sendEvent(&widget, &event);
  }
  settle();
}

void type(QWidget& widget, const QString& text) {
  widget.setFocus(Qt::MouseFocusReason);
  settle();
  for (const QChar c : text) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, Qt::Key_unknown, Qt::NoModifier, QString(c));
      QCoreApplication::sendEvent(&widget, &event);
    }
  }
  settle();
}

void pick(QComboBox& combo, int index) {
  combo.showPopup();
  settle();
  combo.view()->setCurrentIndex(combo.model()->index(index, 0));
  press(*combo.view(), Qt::Key_Return);
}

void settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace desktop::hands
