#include "motor/session/headless_windows.h"

#include "motor/session/map_window.h"

namespace motor {

HeadlessWindows::HeadlessWindows(int width, int height) : width_(width), height_(height) {}

std::int64_t HeadlessWindows::openMap(MapWindow& window) {
  window.resized(width_, height_);
  return ++lastHandle_;
}

void HeadlessWindows::closeMap(MapWindow& /*window*/) {}

void HeadlessWindows::mapChanged(MapWindow& /*window*/) {}

void HeadlessWindows::resize(MapWindow& window, int width, int height) { window.resized(width, height); }

void HeadlessWindows::maximize(MapWindow& /*window*/) {}

void HeadlessWindows::showLegend(MapWindow& /*window*/, std::int64_t /*parent*/, int /*x*/, int /*y*/) {}

void HeadlessWindows::hideLegend() {}

bool HeadlessWindows::command(MapWindow& /*window*/, int /*code*/) { return false; }

}  // namespace motor
