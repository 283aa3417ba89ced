#pragma once

#include <QFocusEvent>

namespace desktop {

// Whether the user has come here by the keyboard.
[[nodiscard]] inline bool isKeyboardFocus(const QFocusEvent& event) {
  return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason ||
         event.reason() == Qt::ShortcutFocusReason;
}

// Whether the user has come from another window, a menu or a message, to where he was before: he has entered nothing.
[[nodiscard]] inline bool isReturningFocus(const QFocusEvent& event) {
  return event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason ||
         event.reason() == Qt::MenuBarFocusReason;
}

// Whether a widget shows the ring of the keyboard: once the user has come by the keyboard, and again when the window
// comes back to the front with the widget still in it.
class KeyboardRing {
 public:
  void focusIn(const QFocusEvent& event) {
    isShown_ = isKeyboardFocus(event) || (isReturningFocus(event) && comesBack_);
  }
  void focusOut(const QFocusEvent& event) {
    comesBack_ = isShown_ && isReturningFocus(event);
    isShown_ = false;
  }
  [[nodiscard]] bool isShown() const { return isShown_; }

 private:
  bool isShown_ = false;
  bool comesBack_ = false;
};

}  // namespace desktop
