#pragma once

#include <filesystem>

#include "study/input/fault.h"
#include "study/model/progress.h"
#include "study/model/study.h"

namespace study {

// Reads and checks the input of a study, as docs/study-input.md describes it. Throws InputFaults with everything that
// a person has to put right, and StudyError where the map cannot be computed.
[[nodiscard]] Study readInput(const std::filesystem::path& folder, const Progress& progress);

}  // namespace study
