#include <algorithm>
#include <cmath>
#include <memory>

#include "motor/session/coord_sys.h"
#include "motor/session/executors.h"
#include "motor/session/layer_settings.h"
#include "motor/session/map_layers.h"
#include "motor/session/map_view.h"
#include "motor/session/session_state.h"
#include "motor/session/window_shape.h"
#include "motor/tables/result_table.h"
#include "text/utf8.h"

namespace motor {
namespace {

constexpr double kStartingZoom = 1e6;  // metres, of a map without objects

bool isSelection(const std::string& table) { return text::equalsIgnoringCase(table, "Selection"); }

// The layers of the tables named in a statement; that of Selection has no name yet.
std::vector<Layer> newLayers(const SessionState& session, const std::vector<Name>& tables) {
  std::vector<Layer> layers;
  for (const Name& table : tables) {
    const TableEntry& entry = session.tables.at(table.text);
    layers.push_back(layerFor(entry));
    if (isSelection(table.text)) layers.back().name.clear();
  }
  return layers;
}

// Selection's layer gets the name that its rows keep, which opens a table of that name: when all else is right.
void nameSelection(SessionState& session, std::vector<Layer>& layers) {
  for (Layer& layer : layers) {
    if (layer.name.empty()) layer.name = session.tables.nameOfSelection();
  }
}

// What a query found is labelled as its table is in the map over which it is laid; each may then be changed.
void labelAsItsTable(Layer& layer, const Map& map) {
  const auto query = std::dynamic_pointer_cast<const ResultTable>(layer.table);
  if (query == nullptr) return;
  const auto isOfTable = [&](const Layer& each) { return each.table == query->base().table && !each.theme; };
  const auto shown = std::ranges::find_if(map.layers, isOfTable);
  if (shown == map.layers.end()) return;
  layer.label = shown->label;
  layer.label.edited.clear();
}

// The layers of an order from the top. Throws LanguageError for what is no whole number.
std::vector<int> layerNumbers(const std::vector<ExpressionPtr>& order, const SessionState& session) {
  std::vector<int> numbers;
  for (const ExpressionPtr& expression : order) {
    const double number = session.number(expression);
    if (number != std::floor(number))
      throw LanguageError(expression->position(), Value(number).toText(), "se esperaba un número entero");
    numbers.push_back(session.integer(expression));
  }
  return numbers;
}

void setZoom(Map& map, const ZoomClause& clause, const std::string& unit, const SessionState& session) {
  if (const auto* entire = std::get_if<ZoomEntire>(&clause)) {
    entire->layer ? showEntire(map, layerOf(map, *entire->layer, session)) : showEntire(map);
    return;
  }
  double metres = 0;
  ExpressionPtr at;
  if (const auto* width = std::get_if<Measure>(&clause)) {
    at = width->value;
    metres = session.number(width->value) * metresPerDistanceUnit(width->unit.empty() ? unit : width->unit);
  } else {
    const auto& scale = std::get<ScaleClause>(clause);
    at = scale.ground.value;
    const double inches = session.number(scale.screen.value) /
                          paperUnitsPerInch(scale.screen.unit.empty() ? session.paperUnit : scale.screen.unit);
    const double ground = session.number(scale.ground.value) *
                          metresPerDistanceUnit(scale.ground.unit.empty() ? unit : scale.ground.unit);
    metres = map.pixelWidth / kPixelsPerInch * ground / inches;
  }
  if (!(metres > 0 && std::isfinite(metres)))
    throw LanguageError(at->position(), Value(session.number(at)).toText(), "la anchura del mapa ha de ser positiva");
  map.zoomMetres = metres;
}

void setCentre(Map& map, const CoordinatePair& centre, const CoordinateSystem& from, const SessionState& session) {
  const Point point = Transformation(from, map.coordinateSystem)(session.point(centre));
  if (!std::isfinite(point.x) || !std::isfinite(point.y))
    throw LanguageError(centre.position, "center", "el punto no existe en la proyección del mapa");
  map.centre = point;
}

void setCoordinateSystem(Map& map, const CoordinateSystem& system) {
  const Point centre = Transformation(map.coordinateSystem, system)(map.centre);
  if (std::isfinite(centre.x) && std::isfinite(centre.y)) map.centre = centre;
  map.coordinateSystem = system;
}

void setProperties(MapWindowProperties& properties, const SetMap& statement) {
  if (!statement.distanceUnit.empty()) {
    [[maybe_unused]] const double known = metresPerDistanceUnit(statement.distanceUnit);
    properties.distanceUnit = statement.distanceUnit;
  }
  if (!statement.areaUnit.empty()) properties.areaUnit = statement.areaUnit;
  if (!statement.xyUnit.empty()) properties.xyUnit = statement.xyUnit;
  if (statement.preserve) properties.keepsScale = *statement.preserve == SetMap::Preserve::scale;
  if (statement.status) properties.status = static_cast<MapWindowProperties::Status>(*statement.status);
}

}  // namespace

void execute(SessionState& session, const MapFrom& statement) {
  Map map;
  expectRoomFor(map, statement.tables.size());
  map.layers = newLayers(session, statement.tables);
  const EvaluatedShape shape = evaluate(statement.shape, session);
  nameSelection(session, map.layers);
  map.coordinateSystem = map.layers.front().table->coordinateSystem();
  map.zoomMetres = kStartingZoom;
  MapWindow& window = session.openWindow(std::move(map));
  setShape(session, window, shape);
  showEntire(window.map());
  window.changed();
}

void execute(SessionState& session, const SetMap& statement) {
  MapWindow& window = session.windowOrFront(statement.window);
  Map map = window.map();
  MapWindowProperties properties = window.properties();
  setProperties(properties, statement);
  const CoordinateSystem clauseSystem =
      statement.coordSys ? coordinateSystemOf(*statement.coordSys, session) : session.coordinateSystem;
  if (statement.coordSys) setCoordinateSystem(map, clauseSystem);
  if (!statement.order.empty()) orderLayers(map, layerNumbers(statement.order, session));
  if (statement.center) setCentre(map, *statement.center, clauseSystem, session);
  if (statement.zoom) setZoom(map, *statement.zoom, properties.distanceUnit, session);
  for (const LayerChange& layer : statement.layers)
    change(layerOf(map, layer.layer, session), layer, properties.distanceUnit, session);
  window.map() = std::move(map);
  window.properties() = std::move(properties);
  window.changed();
}

void execute(SessionState& session, const AddMapLayer& statement) {
  MapWindow& window = session.windowOrFront(statement.window);
  expectRoomFor(window.map(), statement.tables.size());
  std::vector<Layer> layers = newLayers(session, statement.tables);
  nameSelection(session, layers);
  Map map = window.map();
  std::size_t onTop = 0;
  for (Layer& layer : layers) {
    labelAsItsTable(layer, map);
    if (statement.automatic) {
      insertByKind(map, std::move(layer));
    } else {
      map.layers.insert(map.layers.begin() + static_cast<std::ptrdiff_t>(onTop++), std::move(layer));
    }
  }
  window.map() = std::move(map);
  window.changed();
}

void execute(SessionState& session, const RemoveMapLayer& statement) {
  MapWindow& window = session.windowOrFront(statement.window);
  std::vector<std::size_t> indexes;
  for (const LayerReference& layer : statement.layers) indexes.push_back(layerIndexOf(window.map(), layer, session));
  removeLayers(window.map(), std::move(indexes));
  if (window.map().layers.empty()) {
    session.closeWindow(window);
  } else {
    window.changed();
  }
}

}  // namespace motor
