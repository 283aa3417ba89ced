#pragma once

#include <QFocusEvent>

namespace desktop {

// Whether the user has come here by the keyboard.
[[nodiscard]] inline bool isKeyboardFocus(const QFocusEvent& event) {
  return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason ||
         event.reason() == Qt::ShortcutFocusReason;
}

}  // namespace desktop
