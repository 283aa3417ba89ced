#pragma once

#include <filesystem>
#include <string>

#include "study/study.h"

namespace study {

// The three tables of a year, each row with its unit's object: Provincias<year>, ZonasBasicas<year>, Veldoria<year>.
void writeYearTables(const Study& study, int year, const std::filesystem::path& folder);

}  // namespace study
