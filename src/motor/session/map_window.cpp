#include "motor/session/map_window.h"

#include <algorithm>
#include <cmath>
#include <exception>

#include "motor/session/map_view.h"
#include "motor/session/menu_commands.h"
#include "motor/session/session_state.h"
#include "text/number_text.h"

namespace motor {
namespace {

// Between what the user's hand leaves the map's width, in metres: a house, and so many times the entire map (or, where
// there is nothing on the map, more than the whole earth).
constexpr double kSmallestZoom = 50;
constexpr double kMostTimesEntire = 4;
constexpr double kLargestZoom = 1e8;

double zoomWithin(const Map& map, double wanted) {
  const double whole = entireZoom(map);
  const double largest = whole > 0 ? std::max(kSmallestZoom, whole * kMostTimesEntire) : kLargestZoom;
  return std::clamp(wanted, std::min(kSmallestZoom, map.zoomMetres), std::max(largest, map.zoomMetres));
}

constexpr double kClickZoomFactor = 2;

// A callback message: the eight parts of an event, with commas between them.
std::string message(const CommandEvent& event) {
  std::string text = "MI:";
  for (std::size_t i = 0; i < event.size(); ++i) {
    if (i > 0) text += ',';
    text += event[i].toText();
  }
  return text;
}

// Moves the map so that a point of it lies under a pixel. With longitude and latitude the scale changes with the
// centre's latitude, so that it takes some steps to get there.
void putUnder(Map& map, Point point, Point pixel) {
  constexpr int kSteps = 5;
  for (int step = 0; step < kSteps; ++step) {
    const Point there = map.toMap(pixel);
    map.centre.x += point.x - there.x;
    map.centre.y += point.y - there.y;
  }
}

// What a click with a standard tool does; tools that are not listed leave a click to the window's own widgets.
constexpr int kSelectTool = 1701;
constexpr int kZoomInTool = 1705;
constexpr int kZoomOutTool = 1706;
constexpr int kLabelTool = 1708;
constexpr int kPointDrawMode = 34;

// Does what the user asks for as far as it goes. The program's end is no std::exception and passes.
template <typename Action>
void quietly(Action action) {
  try {
    action();
  } catch (const std::exception&) {
    return;  // the user sees that nothing has happened
  }
}

}  // namespace

MapWindow::MapWindow(SessionState& session, std::int32_t id) : session_(session), id_(id) {}

Tool MapWindow::tool() const { return session_.toolbox.tool(); }

const std::vector<MenuEntry>& MapWindow::shortcutMenu() const { return session_.toolbox.shortcutMenu(); }

SelectedRows MapWindow::selectedRows() const {
  SelectedRows selected;
  if (const ResultPtr& selection = session_.tables.selection()) {
    selected.table = selection->base().table;
    selected.rows = selection->contents().rows.front();
  }
  return selected;
}

std::int64_t MapWindow::rulerParent() const { return session_.rulerParent; }

void MapWindow::changed() {
  ++revision_;
  session_.port.mapChanged(*this);
}

void MapWindow::resized(int pixelWidth, int pixelHeight) {
  bool wasEntire = false;
  quietly([&] { wasEntire = isShownEntire(map_); });
  map_.pixelWidth = std::max(1, pixelWidth);
  map_.pixelHeight = std::max(1, pixelHeight);
  quietly([&] {
    if (wasEntire) showEntire(map_);
  });
  ++revision_;
}

void MapWindow::clicked(Point pixel, bool shift, bool control) {
  quietly([&] { use(tool(), pixel, shift, control); });
}

void MapWindow::use(const Tool& current, Point pixel, bool shift, bool control) {
  switch (current.command) {
    case 0:
      return clickedWithOwnButton(current, toSession(session_, map_, map_.toMap(pixel)), shift, control);
    case kSelectTool:
      return selectAt(pixel);
    case kZoomInTool:
      return zoomBy(1 / kClickZoomFactor, pixel);
    case kZoomOutTool:
      return zoomBy(kClickZoomFactor, pixel);
    case kLabelTool:
      return labelAt(pixel);
    default:
      return;
  }
}

void MapWindow::clickedAt(Point inSession, bool shift, bool control) {
  quietly([&] {
    const Tool current = tool();
    if (current.command == 0) {
      clickedWithOwnButton(current, inSession, shift, control);
    } else {
      use(current, map_.toPixel(toMapCoordinates(session_, map_, inSession)), shift, control);
    }
  });
}

void MapWindow::clickedWithOwnButton(const Tool& tool, Point at, bool shift, bool control) {
  const ToolButton* button = session_.toolbox.findButton(tool.buttonId);
  if (button == nullptr) return session_.chooseTool({.command = kSelectTool});
  const bool drags = tool.drawMode != kPointDrawMode;
  session_.event = {at.x,          at.y,   shift, control, drags ? Value(at.x) : Value(), drags ? Value(at.y) : Value(),
                    tool.buttonId, Value()};
  const std::string method = button->method;
  const std::string text = message(session_.event);
  const std::shared_ptr<platform::CallbackObject> callback = session_.callback;
  if (callback && !method.empty()) callback->invoke(method, text);
}

void MapWindow::menuChosen(std::size_t entry) {
  if (entry >= shortcutMenu().size()) return;
  quietly([this, chosen = shortcutMenu()[entry]] { choose(chosen); });
}

void MapWindow::choose(const MenuEntry& chosen) {
  if (chosen.command != 0) {
    if (knowsMenuCommand(chosen.command)) runMenuCommand(session_, *this, chosen.command);
    return;
  }
  session_.event = {};
  session_.event[7] = chosen.id;
  const std::string text = message(session_.event);
  const std::shared_ptr<platform::CallbackObject> callback = session_.callback;
  if (callback && !chosen.method.empty()) callback->invoke(chosen.method, text);
}

void MapWindow::legendClosed() { session_.legend.open = false; }

void MapWindow::zoomedBy(double factor, Point aroundPixel) {
  quietly([&] { zoomBy(factor, aroundPixel); });
}

void MapWindow::zoomBy(double factor, Point aroundPixel) {
  const Point fixed = map_.toMap(aroundPixel);
  const double zoom = zoomWithin(map_, map_.zoomMetres * factor);
  if (zoom == map_.zoomMetres) return;
  map_.zoomMetres = zoom;
  putUnder(map_, fixed, aroundPixel);
  changed();
}

void MapWindow::pannedBy(double pixelX, double pixelY) {
  quietly([&] {
    putUnder(map_, map_.centre, {map_.pixelWidth / 2.0 + pixelX, map_.pixelHeight / 2.0 + pixelY});
    changed();
  });
}

void MapWindow::selectAt(Point pixel) {
  const std::vector<Hit> hits = objectsAt(map_, map_.toMap(pixel));
  if (hits.empty()) {
    session_.tables.deselect();
  } else {
    const Layer& layer = map_.layers[hits.front().layer];
    ResultSource source{.name = layer.name, .table = layer.table};
    RowId row = hits.front().row;
    if (const auto* result = dynamic_cast<const ResultTable*>(layer.table.get())) {
      row = result->sourceRow(row);
      source = result->base();
    }
    ResultContents contents{.sources = {source}, .rows = {{row}}, .columns = source.table->columns(), .data = {}};
    for (std::size_t column = 0; column < contents.columns.size(); ++column)
      contents.data.emplace_back(ResultContents::SourceColumn{0, column});
    session_.tables.select(std::make_shared<const ResultTable>(std::move(contents)));
  }
  session_.allMapsChanged();
}

void MapWindow::labelAt(Point pixel) {
  const std::vector<Hit> hits = objectsAt(map_, map_.toMap(pixel));
  if (hits.empty()) return;
  std::vector<EditedLabel>& labels = map_.layers[hits.front().layer].label.edited;
  const RowId row = hits.front().row;
  if (std::any_of(labels.begin(), labels.end(), [&](const EditedLabel& l) { return l.row == row; })) return;
  labels.emplace_back().row = row;
  changed();
}

}  // namespace motor
