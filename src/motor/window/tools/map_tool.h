#pragma once

#include <QCursor>
#include <QPainter>
#include <QPointF>

#include "motor/drawing/map_view.h"
#include "motor/session/toolbox.h"
#include "motor/window/map_cursor.h"
#include "motor/window/tools/map_site.h"

namespace motor {

// Where the pointer is, in logical pixels of the map's widget, and which keys are held.
struct Pointer {
  QPointF at;
  Qt::KeyboardModifiers keys;

  [[nodiscard]] bool shift() const { return keys.testFlag(Qt::ShiftModifier); }
  [[nodiscard]] bool control() const { return keys.testFlag(Qt::ControlModifier); }
};

[[nodiscard]] inline Point toPoint(QPointF p) { return {p.x(), p.y()}; }
[[nodiscard]] inline QPointF toQPointF(Point p) { return {p.x, p.y}; }

// What the user does with one tool on a map. A tool keeps what a gesture needs between a press and the release, tells
// the map window what was asked for, and paints above the map what shows the gesture. After it has told the window
// something, the window may be gone.
class MapTool {
 public:
  MapTool(MapSite& site, const Tool& tool) : site_(site), tool_(tool) {}
  virtual ~MapTool() = default;
  MapTool(const MapTool&) = delete;
  MapTool& operator=(const MapTool&) = delete;

  [[nodiscard]] const Tool& tool() const { return tool_; }

  // The tool's button goes down, the pointer moves with it held, the button comes up. Only while the window is there.
  virtual void press(const Pointer&) {}
  virtual void drag(const Pointer&) {}
  virtual void release(const Pointer&) {}
  // The second press of a double click; it is a click of its own where a tool does not say otherwise.
  virtual void doublePress(const Pointer& pointer) { press(pointer); }
  // The pointer moves with no button held.
  virtual void hover(const Pointer&) {}
  // Gives up what was begun; false when there was nothing.
  virtual bool cancel() { return false; }
  // Takes the last step of what was begun back; false when there was nothing.
  virtual bool takeBack() { return false; }

  // Paints the gesture above the map. `view` is what the map shows.
  virtual void paint(QPainter&, const MapView&) const {}
  [[nodiscard]] virtual QCursor cursor() const { return cursorFor(tool_); }
  // Whether the object under the pointer lights up.
  [[nodiscard]] virtual bool lightsObjects() const { return false; }

 protected:
  [[nodiscard]] MapSite& site() const { return site_; }
  // Null once the map window is gone.
  [[nodiscard]] MapWindow* mapWindow() const { return site_.mapWindow(); }

 private:
  MapSite& site_;
  Tool tool_;
};

}  // namespace motor
