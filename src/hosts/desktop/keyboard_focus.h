#pragma once

#include <QFocusEvent>

namespace desktop {

// Whether the user has come here by the keyboard.
[[nodiscard]] inline bool isKeyboardFocus(const QFocusEvent& event) {
  return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason ||
         event.reason() == Qt::ShortcutFocusReason;
}

// Whether a widget shows the ring of the keyboard: once the user has come by the keyboard, and again when the window
// comes back to the front with the widget still in it.
class KeyboardRing {
 public:
  void focusIn(const QFocusEvent& event) {
    isShown_ = isKeyboardFocus(event) || (isOfAnotherWindow(event) && comesBack_);
  }
  void focusOut(const QFocusEvent& event) {
    comesBack_ = isShown_ && isOfAnotherWindow(event);
    isShown_ = false;
  }
  [[nodiscard]] bool isShown() const { return isShown_; }

 private:
  [[nodiscard]] static bool isOfAnotherWindow(const QFocusEvent& event) {
    return event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason;
  }

  bool isShown_ = false;
  bool comesBack_ = false;
};

}  // namespace desktop
