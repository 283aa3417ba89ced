#include "motor/session/map_layers.h"

#include <algorithm>
#include <set>

#include "motor/session/session_state.h"
#include "text/utf8.h"

namespace motor {
namespace {

// From the top: texts and points, lines, regions.
int heightOfKind(const Layer& layer) {
  switch (firstKind(layer).value_or(MapObject::Kind::region)) {
    case MapObject::Kind::text:
    case MapObject::Kind::point:
      return 0;
    case MapObject::Kind::polyline:
      return 1;
    case MapObject::Kind::region:
      return 2;
  }
  return 2;
}

// "Base(n)" with the first n that no layer has.
std::string nameOfTheme(const Map& map, const std::string& base) {
  std::set<std::string> taken;
  for (const Layer& layer : map.layers) taken.insert(text::lower(layer.name));
  int n = 1;
  while (taken.contains(text::lower(base) + "(" + std::to_string(n) + ")")) ++n;
  return base + "(" + std::to_string(n) + ")";
}

}  // namespace

std::optional<MapObject::Kind> firstKind(const Layer& layer) {
  for (RowId row = 1; row <= layer.table->rowCount(); ++row) {
    if (!layer.table->isDeleted(row) && layer.table->object(row)) return layer.table->object(row)->kind;
  }
  return std::nullopt;
}

std::size_t layerIndexOf(const Map& map, const LayerReference& reference, const SessionState& session) {
  if (reference.number) {
    const int number = session.integer(reference.number);
    if (number < 1 || number > static_cast<int>(map.layers.size()))
      throw LanguageError(reference.position, std::to_string(number), "el mapa no tiene esa capa");
    return static_cast<std::size_t>(number - 1);
  }
  for (std::size_t i = 0; i < map.layers.size(); ++i) {
    if (text::equalsIgnoringCase(map.layers[i].name, reference.name)) return i;
  }
  throw LanguageError(reference.position, reference.name, "el mapa no tiene esa capa");
}

Layer& layerOf(Map& map, const LayerReference& reference, const SessionState& session) {
  const bool isCosmetic = reference.number ? session.integer(reference.number) == 0
                                           : text::equalsIgnoringCase(reference.name, map.cosmetic.name);
  return isCosmetic ? map.cosmetic : map.layers[layerIndexOf(map, reference, session)];
}

void expectRoomFor(const Map& map, std::size_t more) {
  if (more > kMostLayers || map.layers.size() + more > kMostLayers)
    throw EngineError("un mapa no puede tener más de " + std::to_string(kMostLayers) + " capas");
}

Layer layerFor(const TableEntry& entry) {
  if (!entry.table->hasObjects()) throw EngineError("la tabla «" + entry.name + "» no tiene objetos de mapa");
  Layer layer;
  layer.name = entry.name;
  layer.table = entry.table;
  return layer;
}

void insertByKind(Map& map, Layer layer) {
  const int height = heightOfKind(layer);
  const auto at = std::find_if(map.layers.begin(), map.layers.end(),
                               [height](const Layer& l) { return heightOfKind(l) >= height; });
  map.layers.insert(at, std::move(layer));
}

std::size_t baseIndexOf(const Map& map, std::size_t index) {
  while (map.layers[index].theme) ++index;
  return index;
}

std::size_t insertTheme(Map& map, std::size_t base, std::shared_ptr<const Shade> theme) {
  expectRoomFor(map, 1);
  Layer layer;
  layer.name = nameOfTheme(map, map.layers[base].name);
  layer.table = map.layers[base].table;
  layer.display = Display::value;
  layer.selectable = false;  // its objects are the base's
  layer.theme = std::move(theme);
  std::size_t at = base;
  while (at > 0 && map.layers[at - 1].theme) --at;
  map.layers.insert(map.layers.begin() + static_cast<std::ptrdiff_t>(at), std::move(layer));
  return at;
}

void removeLayers(Map& map, std::vector<std::size_t> indexes) {
  std::vector<bool> goes(map.layers.size(), false);
  for (const std::size_t index : indexes) {
    goes[index] = true;
    if (map.layers[index].theme) continue;
    for (std::size_t above = index; above > 0 && map.layers[above - 1].theme; --above) goes[above - 1] = true;
  }
  std::vector<Layer> kept;
  for (std::size_t i = 0; i < map.layers.size(); ++i) {
    if (!goes[i]) kept.push_back(std::move(map.layers[i]));
  }
  map.layers = std::move(kept);
}

void orderLayers(Map& map, const std::vector<int>& numbers) {
  std::vector<std::size_t> order;
  const auto isThere = [&](std::size_t index) { return std::find(order.begin(), order.end(), index) != order.end(); };
  for (const int number : numbers) {
    if (number < 1 || number > static_cast<int>(map.layers.size()))
      throw EngineError("el mapa no tiene la capa " + std::to_string(number));
    if (isThere(static_cast<std::size_t>(number - 1)))
      throw EngineError("la capa " + std::to_string(number) + " aparece dos veces en el orden");
    order.push_back(static_cast<std::size_t>(number - 1));
  }
  for (std::size_t i = 0; i < map.layers.size(); ++i) {
    if (!isThere(i)) order.push_back(i);
  }
  // A base and its themes come where the first of them is named, the themes in the order they are named.
  std::vector<Layer> layers;
  std::vector<bool> done(map.layers.size(), false);
  for (const std::size_t named : order) {
    const std::size_t base = baseIndexOf(map, named);
    if (done[base]) continue;
    done[base] = true;
    for (const std::size_t theme : order) {
      if (map.layers[theme].theme && baseIndexOf(map, theme) == base) layers.push_back(map.layers[theme]);
    }
    layers.push_back(map.layers[base]);
  }
  map.layers = std::move(layers);
}

}  // namespace motor
