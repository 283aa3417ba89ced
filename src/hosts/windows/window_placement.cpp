#include "hosts/windows/window_placement.h"

#include <algorithm>

namespace windows {
namespace {

constexpr double kShareOfRoom = 0.92;
constexpr double kSmallestWidth = 1016;
constexpr double kSmallestHeight = 720;
constexpr double kSmallestShare = 0.5;

}  // namespace

Room roomOf(HMONITOR monitor, UINT dots) {
  MONITORINFO info{};
  info.cbSize = sizeof info;
  GetMonitorInfoW(monitor, &info);
  const Scale usual(dots);
  const double across = static_cast<double>(widthOf(info.rcWork)) / usual.of(kSmallestWidth);
  const double down = static_cast<double>(heightOf(info.rcWork)) / usual.of(kSmallestHeight);
  return {info.rcWork, Scale(dots, std::clamp(std::min(across, down), kSmallestShare, 1.0))};
}

Room roomOf(HWND window) {
  return roomOf(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), GetDpiForWindow(window));
}

SIZE smallestWorkingWindow(const Scale& scale) { return {scale.of(kSmallestWidth), scale.of(kSmallestHeight)}; }

RECT firstPlace(screen::FormLook look, SIZE stored, const Room& room) {
  const LONG roomWidth = widthOf(room.area);
  const LONG roomHeight = heightOf(room.area);
  SIZE size = stored;
  if (look == screen::FormLook::window) {
    size.cx = std::min(std::max(stored.cx, std::lround(roomWidth * kShareOfRoom)), roomWidth);
    size.cy = std::min(std::max(stored.cy, std::lround(roomHeight * kShareOfRoom)), roomHeight);
  }
  const LONG left = room.area.left + std::max(0L, (roomWidth - size.cx) / 2);
  const LONG top = room.area.top + std::max(0L, (roomHeight - size.cy) / 2);
  return {left, top, left + size.cx, top + size.cy};
}

}  // namespace windows
