#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace motor {

class MapWindow;

// What a session needs of the screen. `headless_windows.h` keeps everything in memory; motor/window shows real windows.
// The session outlives none of its windows: it closes them all when it ends.
class WindowPort {
 public:
  virtual ~WindowPort() = default;

  // A map window was opened: gives it a window handle (not 0). From here on the port may call back into `window`.
  [[nodiscard]] virtual std::int64_t openMap(MapWindow& window) = 0;
  virtual void closeMap(MapWindow& window) = 0;

  // The map, its layers, its selection or its current tool have changed and should be painted again soon.
  virtual void mapChanged(MapWindow& window) = 0;

  // The window is to have this size in pixels; or to fill the window it lies in, and to keep filling it.
  virtual void resize(MapWindow& window, int width, int height) = 0;
  virtual void maximize(MapWindow& window) = 0;

  // The legend and ruler windows: shown or hidden, and where (pixels relative to their parent window's handle).
  virtual void showLegend(MapWindow& window, std::int64_t parent, int x, int y) = 0;
  virtual void hideLegend() = 0;
  // The window handle of the legend that is shown; 0 when there is none or it has no handle.
  [[nodiscard]] virtual std::int64_t legendHandle() { return 0; }

  // Menu commands with a dialog of their own or that act on the whole window: 112 print, 801 layer control, 807 view
  // entire layer. False when there is no screen to show it on.
  [[nodiscard]] virtual bool command(MapWindow& window, int code) = 0;
};

}  // namespace motor
