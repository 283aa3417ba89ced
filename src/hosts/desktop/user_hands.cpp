#include "hosts/desktop/user_hands.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace desktop::hands {
namespace {

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

void pointAt(QWidget& widget) {
  send(widget, QEvent::MouseMove, widget.rect().center(), Qt::NoButton, Qt::NoButton);
  settle();
}

void press(QWidget& widget, Qt::Key key) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
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
