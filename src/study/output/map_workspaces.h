#pragma once

#include <string>

#include "study/output/map_projection.h"

namespace study {

// The workspace of a year's map, in UTF-8 with plain line ends: the provinces' outlines over the zones, and the
// region's own table, which is not displayed but has its place as layer 3. It opens on the whole region.
[[nodiscard]] std::string yearWorkspace(int year, const MapProjection& projection);

// The workspace of the statistics map: one layer, the table Estadisticas.
[[nodiscard]] std::string statisticsWorkspace(const MapProjection& projection);

}  // namespace study
