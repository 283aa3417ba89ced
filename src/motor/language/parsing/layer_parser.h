#pragma once

#include "motor/language/parsing/token_stream.h"
#include "motor/language/statements/layer_change.h"

namespace motor {

// What follows the word Layer in Set Map, which stood at `position`.
[[nodiscard]] LayerChange parseLayerChange(TokenStream& stream, Position position);

// What follows the word Label, which stood at `position`.
[[nodiscard]] LabelClause parseLabelClause(TokenStream& stream, Position position);

// (min, max) [Units u] [On | Off]
[[nodiscard]] ZoomRange parseZoomRange(TokenStream& stream);

// None, Simple or Arrow
[[nodiscard]] LabelLine parseLabelLine(TokenStream& stream);

}  // namespace motor
