#pragma once

#include <QString>

#include "motor/map/layer.h"

namespace motor {

// What a dialog calls a layer: by its name, except that the rows of a selection have one that only statements use.
[[nodiscard]] QString layerName(const Layer& layer);

}  // namespace motor
