#pragma once

#include "motor/session/map_window.h"

namespace motor {

class PlacedLabels;

// What a tool sees of the widget that it works on.
class MapSite {
 public:
  virtual ~MapSite() = default;

  // Null once the map window is gone.
  [[nodiscard]] virtual MapWindow* mapWindow() = 0;
  // The labels that stand on the map at present.
  [[nodiscard]] virtual const PlacedLabels& labels() = 0;
  // What the tool paints has changed.
  virtual void toolChanged() = 0;
  // The tool's cursor has changed.
  virtual void updateCursor() = 0;
  // The map is about to move under the user's hand, many times a second.
  virtual void startMoving() = 0;
  // The map's picture leaves the window at the user's hand, until it is dropped somewhere.
  virtual void takeOut() = 0;
};

}  // namespace motor
