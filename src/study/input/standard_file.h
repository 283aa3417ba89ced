#pragma once

#include <filesystem>
#include <vector>

#include "study/input/fault_log.h"
#include "study/input/settings.h"
#include "study/model/age_group.h"
#include "study/model/study.h"

namespace study {

inline constexpr const char* kStandardFile = "standard.csv";

// A standard population with its own division into age groups; no groups: it is faulty.
struct Standard {
  StandardPopulation population;
  std::vector<AgeGroup> ages;
};

// The standard population that the settings name: a published one, or that of the input's own file.
[[nodiscard]] Standard readStandard(const std::filesystem::path& folder, const Settings& settings, FaultLog& log);

// The standard by the study's age groups, each of which must be made of whole groups of the standard.
[[nodiscard]] StandardPopulation standardFor(const std::vector<AgeGroup>& ages, const Standard& standard,
                                             const Settings& settings, FaultLog& log);

}  // namespace study
