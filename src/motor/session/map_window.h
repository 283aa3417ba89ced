#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "motor/map/map.h"
#include "motor/session/toolbox.h"
#include "motor/tables/result_table.h"

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
  bool keepsScale = false;  // another width of the window shows more or less; else the same, larger or smaller
  std::string lastTheme;    // the theme layer that was created or changed last
};

// The rows that are selected, for the windows that show their table.
struct SelectedRows {
  TablePtr table;  // a base table; null when nothing is selected
  std::vector<RowId> rows;
};

// What the user may switch about a layer.
struct LayerSwitches {
  bool shown = true;
  bool selectable = true;  // not of a theme, nor the next
  bool labelled = false;   // every object, by itself
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
  // What is selected, or null. Another selection is another object.
  [[nodiscard]] std::shared_ptr<const ResultTable> selection() const;
  // The objects under a pixel that the current tool is for, the one it acts on first: the select tool takes the topmost
  // one that is selectable, the label tool the topmost one that may be labelled; to the others all that is seen there
  // counts, and the smallest comes first.
  [[nodiscard]] std::vector<Hit> pointedAt(Point pixel) const;
  // The handle of the window that the ruler's window lies in, or 0.
  [[nodiscard]] std::int64_t rulerParent() const;
  // Increases whenever something that is painted has changed.
  [[nodiscard]] std::uint64_t revision() const { return revision_; }
  // Something that is painted has changed: tells the port.
  void changed();
  // Only what lies above the map has changed, such as the selection: tells the port.
  void changedAbove();

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
  // A drag with a button of the program's own, which calls back with both ends of what was drawn.
  void dragged(Point fromPixel, Point toPixel, bool shift, bool control);
  // As in hand_zoom.h.
  void zoomedBy(double factor, Point aroundPixel);
  void zoomedIntoBox(const Box& pixels);
  void zoomedOutOfBox(const Box& pixels);
  void pannedBy(double pixelX, double pixelY);
  // As in hand_labels.h.
  void labelPut(const Hit& object);
  void labelRemoved(const Hit& object);
  void labelMoved(const Hit& object, Point anchorInMap);
  void shownEntire();                   // the whole map
  void shownEntire(std::size_t layer);  // the objects of a layer, an index into the map's layers
  // By layer, from the top down; without effect when these are not the layers that the map has.
  void layersSwitched(const std::vector<LayerSwitches>& layers);
  void menuChosen(std::size_t entry);  // an index into shortcutMenu()
  void legendClosed();                 // the legend's window, by its own close box

 private:
  friend class SessionState;
  void use(const Tool& tool, Point pixel, bool shift, bool control);
  void calledBackWith(const Tool& tool, Point from, Point to, bool shift, bool control);
  void choose(const MenuEntry& entry);
  void selectAt(Point pixel);
  void labelAt(Point pixel);
  [[nodiscard]] Point inSession(Point pixel) const;
  template <typename Action>
  void change(Action action);

  SessionState& session_;
  std::int32_t id_;
  std::int64_t handle_ = 0;
  Map map_;
  MapWindowProperties properties_;
  std::uint64_t revision_ = 0;
};

}  // namespace motor
