#pragma once

#include <filesystem>

#include "study/input/counted_rows.h"

namespace study {

// Enters the deaths of an input in the study's counts, which have their persons already. Where age groups or causes
// could not be read, the study has none, and nothing is said of those of the rows; nor is anything entered then.
void readDeaths(const std::filesystem::path& folder, const CountedUnits& units, Study& study, FaultLog& log);

}  // namespace study
