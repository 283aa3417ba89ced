#pragma once

#include <cstddef>
#include <vector>

#include "study/model/study.h"

namespace study {

// The counts of the region and then of its provinces, each the sum of its zones. `year` is an index of the study's
// years.
[[nodiscard]] std::vector<Counts> summedCounts(const Study& study, std::size_t year);

// Deaths by age of a published cause, numbered as in HiddenDeaths: 0 for all causes, then those of the study's list.
[[nodiscard]] ByAge deathsOf(const Study& study, const Counts& counts, const SexChoice& sex, std::size_t cause);

}  // namespace study
