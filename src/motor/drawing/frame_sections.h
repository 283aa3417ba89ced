#pragma once

#include <functional>
#include <vector>

#include "motor/drawing/legend_sections.h"

namespace motor {

// The sections of a legend whose frames were given (Map::legendFrames), of the layers that the map shows: a frame's own
// signs, else what `sectionOf` makes of its layer. A layer that is gone or is not shown has none.
[[nodiscard]] std::vector<LegendSection> frameSections(
    const Map& map, const std::function<LegendSection(const Layer& layer)>& sectionOf);

}  // namespace motor
