#include "hosts/desktop/pop_up_menus.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QSinglePointEvent>
#include <utility>

#include "hosts/desktop/keyboard_focus.h"
#include "hosts/screen/pop_up_frames.h"

namespace desktop {

PopUpMenus::PopUpMenus(QWidget& window, forms::Form& form,
                       std::function<const forms::Control*(const QWidget&)> controlOf, std::function<void()> close)
    : window_(window), form_(form), controlOf_(std::move(controlOf)), close_(std::move(close)) {}

void PopUpMenus::update() {
  qApp->removeEventFilter(this);
  if (screen::openPopUps(form_) > 0) qApp->installEventFilter(this);
}

// What has a handler of its own is left to it.
bool PopUpMenus::isOutside(const QWidget* widget) const {
  const forms::Control* control = widget == nullptr ? nullptr : controlOf_(*widget);
  if (control == nullptr) return true;
  if (control->MouseMove.hasHandlers()) return false;
  while (control->container() != nullptr) control = control->container();
  return !screen::isPopUp(*control);
}

// An event that a widget lets pass is seen again at its parents: where the pointer is counts, not who hears of it.
const QWidget* PopUpMenus::pointedAt(const QEvent& event) const {
  const QPointF at = static_cast<const QSinglePointEvent&>(event).globalPosition();
  const QWidget* child = window_.childAt(window_.mapFromGlobal(at).toPoint());
  return child == nullptr ? &window_ : child;
}

bool PopUpMenus::turnsAway(const QWidget& widget, const QEvent& event) const {
  switch (event.type()) {
    case QEvent::Enter:
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
      return widget.window() == &window_ && isOutside(pointedAt(event));
    case QEvent::FocusIn:
      return widget.window() == &window_ && isKeyboardFocus(static_cast<const QFocusEvent&>(event)) &&
             isOutside(&widget);
    case QEvent::Leave:
    case QEvent::WindowDeactivate:
    case QEvent::WindowBlocked:
      return &widget == &window_;
    default:
      return false;
  }
}

bool PopUpMenus::eventFilter(QObject* watched, QEvent* event) {
  const auto* widget = qobject_cast<const QWidget*>(watched);
  if (widget == nullptr) return false;
  const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (isKey && widget->window() == &window_ && static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    event->accept();
    if (event->type() == QEvent::KeyPress) close_();
    return true;
  }
  if (turnsAway(*widget, *event)) close_();
  return false;
}

}  // namespace desktop
