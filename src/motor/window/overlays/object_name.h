#pragma once

#include <QString>

#include "motor/drawing/label_texts.h"
#include "motor/map/map.h"

namespace motor {

// What an object is called: as its layer's label expression has it; without one, the column that is named "nombre" or
// "name", else the table's first text column. In one line; empty where there is none.
[[nodiscard]] QString objectName(const Map& map, const Hit& object, LabelTexts& texts);

}  // namespace motor
