#pragma once

#include <string>

#include "motor/language/statements/layer_change.h"
#include "motor/map/layer.h"

namespace motor {

class SessionState;

// Does one `Layer n ...` of a Set Map to a layer. Lengths without a unit are in `distanceUnit`; a theme layer
// has no labels of its own, and its objects are never selectable. Throws LanguageError for values that are out of
// place.
void change(Layer& layer, const LayerChange& change, const std::string& distanceUnit, const SessionState& session);

}  // namespace motor
