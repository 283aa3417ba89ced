#pragma once

#include "motor/language/parsing/clauses.h"
#include "motor/language/statements/layer_change.h"

namespace motor {

// What follows the word Layer in Set Map, which stood at `position`.
[[nodiscard]] LayerChange parseLayerChange(TokenStream& stream, Position position);

// The clauses of a layer, for the manual, each behind the words of what they stand in; those of its labels.
void addLayerEntries(ClauseEntries& entries, const std::string& within);
void addLabelEntries(ClauseEntries& entries, const std::string& within);

// What follows the word Label, which stood at `position`.
[[nodiscard]] LabelClause parseLabelClause(TokenStream& stream, Position position);

// (min, max) [Units u] [On | Off]
[[nodiscard]] ZoomRange parseZoomRange(TokenStream& stream);

}  // namespace motor
