#pragma once

#include <filesystem>

#include "study/input/fault_log.h"
#include "study/model/causes.h"

namespace study {

inline constexpr const char* kCausesFile = "causes.csv";

// The causes of death of an input; faulty rows are left out.
[[nodiscard]] CauseList readCauses(const std::filesystem::path& folder, FaultLog& log);

}  // namespace study
