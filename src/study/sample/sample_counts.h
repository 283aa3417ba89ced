#pragma once

#include <cstdint>
#include <vector>

#include "study/counts.h"
#include "study/sample/sample_region.h"

namespace study {

// Plausible counts for a fictional region: for each year from the first on, for each zone, persons by sex and age, and
// the year's deaths drawn from the mortality that the zone's ages, place and the year let expect.
[[nodiscard]] std::vector<std::vector<Counts>> makeCounts(const SampleRegion& region, std::uint64_t seed);

}  // namespace study
