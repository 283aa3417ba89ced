#pragma once

#include <filesystem>

#include "study/model/study.h"

namespace study {

// What lies around the region, with the region itself cut out: the object that stands for the region on the statistics
// map, so that a click finds one unit.
[[nodiscard]] Area surroundings(const Area& region);

// The table of the statistics map: Nombre, Tipo, Indicador, Valor of the region and of each province. Throws
// StudyError.
void writeStatisticsTable(const Study& study, const std::filesystem::path& folder);

}  // namespace study
