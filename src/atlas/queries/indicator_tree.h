#pragma once

#include <string>

namespace atlas {

class Atlas;

inline constexpr int kNavyNode = 0x800000;  // years, units and types
inline constexpr int kSexNode = 192;

// The indicators of the two cause-of-death lists all begin so; the tree shows only what follows.
inline constexpr const char* kCausePrefix = "Tasa estandarizada (x100.000) de ";
inline constexpr std::size_t kCausePrefixLength = 33;

// An indicator without the prefix, or the whole of one that does not begin with it.
[[nodiscard]] std::string withoutCausePrefix(const std::string& indicator);

// Sends a Select statement; the rows that match become the engine's Selection.
void SeleccionarFilas(Atlas& atlas, const std::string& select);

// Adds the selected unit to the map as its top layer and sends the caller's own statement that shows it.
void ResaltarSeleccion(Atlas& atlas, const std::string& statement);

// Whether a root node with the rows' year comes first.
enum class YearNode { none, wanted };

// Adds the unit of the rows selected, from the current row on, to the indicator tree: its sexes, types and indicators.
// Rows are expected by sex and type. Fails as the engine does; 91 when a row has no sex or type to stand under.
void AgregarUnidadArbol(Atlas& atlas, YearNode yearNode);

// Adds the trees of the units above the current unit: a zone's province, and always the region.
void AgregarUnidadesSuperiores(Atlas& atlas);

}  // namespace atlas
