#pragma once

#include <QScreen>
#include <QWidget>

namespace motor {

// More pixels than most desktops put around a window: for windows whose frame is not known yet.
inline constexpr QSize kUsualFrame(16, 40);

// The largest size, without its frame, at which a window is seen whole on the screen that it is on.
[[nodiscard]] inline QSize roomOnScreen(const QWidget& window) {
  return window.screen()->availableSize() - kUsualFrame;
}

}  // namespace motor
