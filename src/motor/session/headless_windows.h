#pragma once

#include "motor/session/window_port.h"

namespace motor {

// Map windows without a screen: each gets a handle, counted up from 900001, and keeps the size it is given. A window
// that is to fill its parent keeps its size, since there is no parent to fill.
class HeadlessWindows : public WindowPort {
 public:
  // New windows have this size in pixels.
  explicit HeadlessWindows(int width = 640, int height = 480);

  [[nodiscard]] std::int64_t openMap(MapWindow& window) override;
  void closeMap(MapWindow& window) override;
  void mapChanged(MapWindow& window) override;
  void resize(MapWindow& window, int width, int height) override;
  void maximize(MapWindow& window) override;
  void showLegend(MapWindow& window, std::int64_t parent, int x, int y) override;
  void hideLegend() override;
  [[nodiscard]] bool command(MapWindow& window, int code) override;

 private:
  int width_;
  int height_;
  std::int64_t lastHandle_ = 900000;
};

}  // namespace motor
