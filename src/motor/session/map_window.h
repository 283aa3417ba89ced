#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "motor/map/map.h"
#include "motor/session/toolbox.h"

namespace motor {

class SessionState;

// What a map window knows besides its map.
struct MapWindowProperties {
  enum class Shown { normal = 0, minimized = 1, maximized = 2 };  // as WindowInfo tells them
  enum class Status { scale = 0, zoom = 1, position = 2 };        // as MapperInfo tells them

  std::string title;
  double paperX = 0;  // inches
  double paperY = 0;
  Shown shown = Shown::normal;
  bool scrollBars = true;
  bool autoscroll = true;
  bool closeBox = true;
  std::string distanceUnit = "mi";
  std::string areaUnit = "sq mi";
  std::string xyUnit = "degree";
  Status status = Status::zoom;
  std::string lastTheme;  // the theme layer that was created or changed last
};

// The rows that are selected, for the windows that show their table.
struct SelectedRows {
  TablePtr table;  // a base table; null when nothing is selected
  std::vector<RowId> rows;
};

// One map window of a session. Toolkit windows paint `map()` and report what the user does; the rest is decided here.
class MapWindow {
 public:
  MapWindow(SessionState& session, std::int32_t id);
  MapWindow(const MapWindow&) = delete;
  MapWindow& operator=(const MapWindow&) = delete;

  [[nodiscard]] std::int32_t id() const { return id_; }
  // The window handle that the port gave.
  [[nodiscard]] std::int64_t handle() const { return handle_; }
  [[nodiscard]] Map& map() { return map_; }
  [[nodiscard]] const Map& map() const { return map_; }
  [[nodiscard]] MapWindowProperties& properties() { return properties_; }
  [[nodiscard]] const MapWindowProperties& properties() const { return properties_; }
  [[nodiscard]] Tool tool() const;
  [[nodiscard]] const std::vector<MenuEntry>& shortcutMenu() const;
  [[nodiscard]] SelectedRows selectedRows() const;
  // The handle of the window that the ruler's window lies in, or 0.
  [[nodiscard]] std::int64_t rulerParent() const;
  // Increases whenever something that is painted has changed.
  [[nodiscard]] std::uint64_t revision() const { return revision_; }
  // Something that is painted has changed: tells the port.
  void changed();

  // --- what the user does; pixels from the window's top left. Nobody hears of what goes wrong: no exception but the
  // end of the program leaves these. A callback may close this window: nothing of it is to be used after `clicked` and
  // `menuChosen` without asking the session again. ---

  // The window now has this size. A map that was shown entire still is; else the zoom, a width on the ground, stays.
  void resized(int pixelWidth, int pixelHeight);
  // A click with the current tool: a button of the program's own calls back with the point in the session's
  // coordinates.
  void clicked(Point pixel, bool shift, bool control);
  // The same, at a point of the session's coordinates, which the callback gets as it is.
  void clickedAt(Point inSession, bool shift, bool control);
  // Factor > 1 shows more; the point under the pixel stays there. The map's width stays between that of a house and
  // some times the entire map; a width beyond that, which a statement set, may only come nearer.
  void zoomedBy(double factor, Point aroundPixel);
  void pannedBy(double pixelX, double pixelY);  // the map moves along with the pointer
  void menuChosen(std::size_t entry);           // an index into shortcutMenu()
  void legendClosed();                          // the legend's window, by its own close box

 private:
  friend class SessionState;
  void use(const Tool& tool, Point pixel, bool shift, bool control);
  void clickedWithOwnButton(const Tool& tool, Point inSession, bool shift, bool control);
  void choose(const MenuEntry& entry);
  void zoomBy(double factor, Point aroundPixel);
  void selectAt(Point pixel);
  void labelAt(Point pixel);

  SessionState& session_;
  std::int32_t id_;
  std::int64_t handle_ = 0;
  Map map_;
  MapWindowProperties properties_;
  std::uint64_t revision_ = 0;
};

}  // namespace motor
