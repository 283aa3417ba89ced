#include <algorithm>
#include <array>

#include "motor/session/attributes.h"
#include "motor/session/map_view.h"
#include "motor/session/session_functions.h"
#include "motor/session/session_state.h"

namespace motor {
namespace {

using MapAttribute = Attribute<SessionState, MapWindow>;

double zoomInSessionUnits(const SessionState& session, const Map& map) {
  return map.zoomMetres / metresPerDistanceUnit(session.distanceUnit);
}

// What the window shows, in the session's coordinates.
Box visibleBox(const SessionState& session, const Map& map) {
  return Transformation(map.coordinateSystem, session.coordinateSystem)(map.visibleBox());
}

int editableLayer(const Map& map) {
  if (map.cosmetic.editable) return 0;
  const auto found = std::find_if(map.layers.begin(), map.layers.end(), [](const Layer& l) { return l.editable; });
  return found == map.layers.end() ? -1 : static_cast<int>(found - map.layers.begin()) + 1;
}

constexpr std::array kAttributes{
    MapAttribute{1, [](const SessionState& s, const MapWindow& w) -> Value { return zoomInSessionUnits(s, w.map()); }},
    MapAttribute{2,
                 [](const SessionState& s, const MapWindow& w) -> Value {
                   const double paper = w.map().pixelWidth / kPixelsPerInch * paperUnitsPerInch(s.paperUnit);
                   return zoomInSessionUnits(s, w.map()) / paper;
                 }},
    MapAttribute{
        3, [](const SessionState& s, const MapWindow& w) -> Value { return toSession(s, w.map(), w.map().centre).x; }},
    MapAttribute{
        4, [](const SessionState& s, const MapWindow& w) -> Value { return toSession(s, w.map(), w.map().centre).y; }},
    MapAttribute{5, [](const SessionState& s, const MapWindow& w) -> Value { return visibleBox(s, w.map()).minX; }},
    MapAttribute{6, [](const SessionState& s, const MapWindow& w) -> Value { return visibleBox(s, w.map()).minY; }},
    MapAttribute{7, [](const SessionState& s, const MapWindow& w) -> Value { return visibleBox(s, w.map()).maxX; }},
    MapAttribute{8, [](const SessionState& s, const MapWindow& w) -> Value { return visibleBox(s, w.map()).maxY; }},
    MapAttribute{
        9, [](const SessionState&, const MapWindow& w) -> Value { return static_cast<double>(w.map().layers.size()); }},
    MapAttribute{10, [](const SessionState&, const MapWindow& w) -> Value { return editableLayer(w.map()); }},
    MapAttribute{11, [](const SessionState&, const MapWindow& w) -> Value { return w.properties().xyUnit; }},
    MapAttribute{12, [](const SessionState&, const MapWindow& w) -> Value { return w.properties().distanceUnit; }},
    MapAttribute{13, [](const SessionState&, const MapWindow& w) -> Value { return w.properties().areaUnit; }},
    MapAttribute{14, [](const SessionState&, const MapWindow& w) -> Value { return w.properties().scrollBars; }},
    MapAttribute{
        15, [](const SessionState&, const MapWindow& w) -> Value { return static_cast<int>(w.properties().status); }},
    MapAttribute{16,
                 [](const SessionState&, const MapWindow& w) -> Value {
                   const auto& layers = w.map().layers;
                   return static_cast<double>(
                       std::count_if(layers.begin(), layers.end(), [](const Layer& l) { return l.theme != nullptr; }));
                 }},
    MapAttribute{17,
                 [](const SessionState&, const MapWindow& w) -> Value {
                   return "CoordSys " + w.map().coordinateSystem.clause();
                 }},
    MapAttribute{18, [](const SessionState&, const MapWindow& w) -> Value { return w.map().coordinateSystem.name(); }},
};

}  // namespace

Value mapperInfo(SessionState& session, const Arguments& arguments) {
  return readAttribute(kAttributes, arguments, 1, session, session.window(arguments.integer(0)));
}

}  // namespace motor
