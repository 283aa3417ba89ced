#include <algorithm>

#include "motor/session/executors.h"
#include "motor/session/map_layers.h"
#include "motor/session/session_state.h"
#include "text/utf8.h"

namespace motor {
namespace {

// The map's theme that a clause names, or the one created or changed last.
Layer& themeOf(Map& map, const std::string& last, const std::optional<LayerReference>& reference,
               const SessionState& session, Position position) {
  if (reference) {
    Layer& layer = map.layers[layerIndexOf(map, *reference, session)];
    if (!layer.theme) throw LanguageError(reference->position, layer.name, "la capa no es temática");
    return layer;
  }
  const auto previous =
      std::find_if(map.layers.begin(), map.layers.end(), [&](const Layer& l) { return l.theme && l.name == last; });
  if (previous == map.layers.end()) throw LanguageError(position, "Prev", "no hay ninguna capa temática anterior");
  return *previous;
}

}  // namespace

void execute(SessionState& session, const Shade& statement) {
  MapWindow& window = session.windowOrFront(statement.window);
  Map& map = window.map();
  const std::size_t base = baseIndexOf(map, layerIndexOf(map, statement.layer, session));
  const std::size_t theme = insertTheme(map, base, std::make_shared<const Shade>(statement));
  window.properties().lastTheme = map.layers[theme].name;
  window.changed();
}

void execute(SessionState& session, const SetShade& statement) {
  MapWindow& window = session.windowOrFront(statement.shade.window);
  const auto reference = statement.previous ? std::nullopt : std::optional(statement.shade.layer);
  Layer& layer = themeOf(window.map(), window.properties().lastTheme, reference, session, statement.position);
  layer.theme = std::make_shared<const Shade>(statement.shade);
  window.properties().lastTheme = layer.name;
  window.changed();
}

void execute(SessionState& session, const SetLegend& statement) {
  MapWindow& window = session.windowOrFront(statement.window);
  Map map = window.map();
  std::string last = window.properties().lastTheme;
  for (const LegendLayer& legend : statement.layers) {
    Layer& layer = themeOf(map, last, legend.layer, session, legend.position);
    layer.legend = std::make_shared<const LegendLayer>(legend);
    last = layer.name;
  }
  window.map() = std::move(map);
  window.properties().lastTheme = std::move(last);
  window.changed();
}

}  // namespace motor
