#include "motor/session/map_window.h"

#include <algorithm>
#include <exception>

#include "motor/map/projected_objects.h"
#include "motor/session/hand_labels.h"
#include "motor/session/hand_zoom.h"
#include "motor/session/map_view.h"
#include "motor/session/menu_commands.h"
#include "motor/session/session_state.h"
#include "text/number_text.h"

namespace motor {
namespace {

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

double boundsArea(const Map& map, const Hit& hit) {
  const auto objects = projectedObjects(map.layers[hit.layer].table, map.coordinateSystem);
  const Box& bounds = objects->objects()[objects->indexOf(hit.row)]->bounds;
  return (bounds.maxX - bounds.minX) * (bounds.maxY - bounds.minY);
}

std::vector<Hit> objectsFor(const Tool& tool, const Map& map, Point p) {
  if (tool.command == tools::kLabel) {
    const std::optional<Hit> object = labelableAt(map, p);
    return object ? std::vector{*object} : std::vector<Hit>();
  }
  if (tool.command == tools::kSelect) {
    std::vector<Hit> hits = objectsAt(map, p);
    if (hits.size() > 1) hits.resize(1);
    return hits;
  }
  Map seen = map;
  for (Layer& layer : seen.layers) layer.selectable = true;
  std::vector<Hit> hits = objectsAt(seen, p);
  std::stable_sort(hits.begin(), hits.end(),
                   [&](const Hit& a, const Hit& b) { return boundsArea(map, a) < boundsArea(map, b); });
  return hits;
}

// A layer that comes back is shown in its theme or in its objects' own styles; what is not switched stays as it was.
void switchLayer(Layer& layer, const LayerSwitches& wanted) {
  if (wanted.shown != (layer.display != Display::off)) {
    const Display shown = layer.theme ? Display::value : layer.pen || layer.brush ? Display::global : Display::graphic;
    layer.display = wanted.shown ? shown : Display::off;
  }
  if (layer.theme) return;
  layer.selectable = wanted.selectable;
  LabelSettings& label = layer.label;
  if (wanted.labelled == (label.automatic && label.visibility != LabelSettings::Visibility::off)) return;
  label.automatic = wanted.labelled;
  if (wanted.labelled && label.visibility == LabelSettings::Visibility::off) {
    label.visibility = LabelSettings::Visibility::on;
  }
}

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

std::shared_ptr<const ResultTable> MapWindow::selection() const { return session_.tables.selection(); }

std::vector<Hit> MapWindow::pointedAt(Point pixel) const {
  std::vector<Hit> hits;
  quietly([&] { hits = objectsFor(tool(), map_, map_.toMap(pixel)); });
  return hits;
}

void MapWindow::changed() {
  ++revision_;
  changedAbove();
}

void MapWindow::changedAbove() { session_.port.mapChanged(*this); }

void MapWindow::resized(int pixelWidth, int pixelHeight) {
  bool wasEntire = false;
  quietly([&] { wasEntire = isShownEntire(map_); });
  if (properties_.keepsScale) map_.zoomMetres *= static_cast<double>(std::max(1, pixelWidth)) / map_.pixelWidth;
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

Point MapWindow::inSession(Point pixel) const { return toSession(session_, map_, map_.toMap(pixel)); }

// Changes the map with what tells whether it has.
template <typename Action>
void MapWindow::change(Action action) {
  quietly([&] {
    if (action()) changed();
  });
}

// Tools that are not listed leave a click to the window's own widgets.
void MapWindow::use(const Tool& current, Point pixel, bool shift, bool control) {
  switch (current.command) {
    case 0:
      return calledBackWith(current, inSession(pixel), inSession(pixel), shift, control);
    case tools::kSelect:
      return selectAt(pixel);
    case tools::kZoomIn:
      return change([&] { return zoomTo(map_, 1 / kClickZoomFactor, pixel); });
    case tools::kZoomOut:
      return change([&] { return zoomTo(map_, kClickZoomFactor, pixel); });
    case tools::kLabel:
      return labelAt(pixel);
    default:
      return;
  }
}

void MapWindow::clickedAt(Point inSession, bool shift, bool control) {
  quietly([&] {
    const Tool current = tool();
    if (current.command == 0) {
      calledBackWith(current, inSession, inSession, shift, control);
    } else {
      use(current, map_.toPixel(toMapCoordinates(session_, map_, inSession)), shift, control);
    }
  });
}

void MapWindow::dragged(Point fromPixel, Point toPixel, bool shift, bool control) {
  quietly([&] {
    const Tool current = tool();
    if (current.command == 0) calledBackWith(current, inSession(fromPixel), inSession(toPixel), shift, control);
  });
}

void MapWindow::calledBackWith(const Tool& tool, Point from, Point to, bool shift, bool control) {
  const ToolButton* button = session_.toolbox.findButton(tool.buttonId);
  if (button == nullptr) return session_.chooseTool({.command = tools::kSelect});
  const bool drags = tool.drawMode != draw_modes::kPoint;
  session_.event = {from.x,        from.y, shift, control, drags ? Value(to.x) : Value(), drags ? Value(to.y) : Value(),
                    tool.buttonId, Value()};
  const std::string method = button->method;
  const std::string text = message(session_.event);
  const std::shared_ptr<platform::CallbackObject> callback = session_.callback;
  if (callback && !method.empty()) callback->invoke(method, text);
}

void MapWindow::layersSwitched(const std::vector<LayerSwitches>& layers) {
  if (layers.size() != map_.layers.size()) return;
  for (std::size_t i = 0; i < layers.size(); ++i) switchLayer(map_.layers[i], layers[i]);
  quietly([&] { changed(); });
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
  change([&] { return zoomAround(map_, factor, aroundPixel); });
}

void MapWindow::zoomedIntoBox(const Box& pixels) {
  change([&] { return zoomIntoBox(map_, pixels); });
}

void MapWindow::zoomedOutOfBox(const Box& pixels) {
  change([&] { return zoomOutOfBox(map_, pixels); });
}

void MapWindow::pannedBy(double pixelX, double pixelY) {
  change([&] { return panBy(map_, pixelX, pixelY); });
}

void MapWindow::labelPut(const Hit& object) {
  quietly([&] {
    putHandLabel(map_, object);
    changed();
  });
}

void MapWindow::labelRemoved(const Hit& object) {
  quietly([&] {
    removeLabel(map_, object);
    changed();
  });
}

void MapWindow::labelMoved(const Hit& object, Point anchorInMap) {
  quietly([&] {
    moveLabel(map_, object, anchorInMap);
    changed();
  });
}

void MapWindow::shownEntire() {
  quietly([&] {
    showEntire(map_);
    changed();
  });
}

void MapWindow::shownEntire(std::size_t layer) {
  if (layer >= map_.layers.size()) return;
  quietly([&] {
    showEntire(map_, map_.layers[layer]);
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
  session_.allMapsChangedAbove();
}

void MapWindow::labelAt(Point pixel) {
  const std::optional<Hit> object = labelableAt(map_, map_.toMap(pixel));
  if (!object) return;
  hasHandLabel(map_, *object) ? labelRemoved(*object) : labelPut(*object);
}

}  // namespace motor
