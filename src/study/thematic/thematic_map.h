#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "study/model/study.h"

namespace study {

// One map of the catalogue: an indicator of one sex in one year, over the units of a frame.
struct ThematicMap {
  std::size_t year = 0;  // index of the study's years
  std::string_view sex;  // a name of kSexChoices
  Unit frame;            // the region or a province
  UnitKind units;        // what the frame is divided into: provinces, or zones
  std::string indicator;
};

// All maps of a study: every year, sex and indicator for the region by province, the region by zone, and each province
// by zone.
[[nodiscard]] std::vector<ThematicMap> thematicMaps(const Study& study);

// Where the map's workspace and table lie below the application folder's "Tablas": without ending.
[[nodiscard]] std::filesystem::path thematicPath(const Study& study, const ThematicMap& map);

// The table of the areas that lie below the map, for units without a figure; below "Tablas", without ending.
[[nodiscard]] std::filesystem::path basePath(const Study& study, const ThematicMap& map);

// The units of the map, in the study's order.
[[nodiscard]] std::vector<Unit> unitsOf(const Study& study, const ThematicMap& map);

}  // namespace study
