#pragma once

#include <optional>
#include <string>
#include <vector>

#include "motor/language/statements/layer_change.h"
#include "motor/map/map.h"

namespace motor {

class SessionState;
struct TableEntry;

// The layer that a clause speaks of; layer 0 is the cosmetic one. Throws LanguageError when the map has no such layer.
[[nodiscard]] Layer& layerOf(Map& map, const LayerReference& reference, const SessionState& session);
// The same as an index into Map::layers, where the cosmetic layer is an error.
[[nodiscard]] std::size_t layerIndexOf(const Map& map, const LayerReference& reference, const SessionState& session);

// What a layer's first object is; nothing without objects.
[[nodiscard]] std::optional<MapObject::Kind> firstKind(const Layer& layer);

// How many layers a map may have, themes counted. Throws EngineError when `more` besides those it has are too many.
inline constexpr std::size_t kMostLayers = 1000;
void expectRoomFor(const Map& map, std::size_t more);

// A new layer of a table in its own styles. Throws EngineError when the table has no map objects.
[[nodiscard]] Layer layerFor(const TableEntry& entry);

// Puts a layer where its kind of objects belongs: points above lines above regions.
void insertByKind(Map& map, Layer layer);

// The index of the base of a theme layer, or the layer's own.
[[nodiscard]] std::size_t baseIndexOf(const Map& map, std::size_t index);

// Puts a theme layer above its base and the base's other themes; returns its index. It is named "Base(n)" with the
// first n that is free. Throws EngineError when the map has too many layers.
std::size_t insertTheme(Map& map, std::size_t base, std::shared_ptr<const Shade> theme);

// Removes layers (by index); themes go with their bases.
void removeLayers(Map& map, std::vector<std::size_t> indexes);

// New order from the top by old numbers (from 1); layers that are not named follow in their old order. Themes stay
// above their bases: naming one brings its base along. Throws EngineError for a number of no layer and for one that
// comes twice.
void orderLayers(Map& map, const std::vector<int>& numbers);

}  // namespace motor
