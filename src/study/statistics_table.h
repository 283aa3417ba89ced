#pragma once

#include <filesystem>
#include <vector>

#include "study/study.h"

namespace study {

// The table Estadisticas: the statistics of each province, and of the region. The region's object is its surroundings,
// a generous rectangle with the provinces cut out, so that every point belongs to one unit.
void writeStatisticsTable(const Study& study, const std::filesystem::path& folder);

// The surroundings' outline: the rectangle and the region as its hole.
[[nodiscard]] std::vector<Ring> surroundings(const Study& study);

}  // namespace study
