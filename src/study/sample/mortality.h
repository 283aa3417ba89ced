#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "study/counts.h"
#include "study/random.h"
#include "study/sample/sample_region.h"

namespace study {

// Deaths expected in the middle of an age group per person and year, before place and year change them: a Gompertz
// curve (B. Gompertz, 1825: mortality grows by a constant factor with each year of age), with a part of its own for the
// first year of life and one for young adults.
[[nodiscard]] double baseMortality(Cause cause, Sex sex, std::size_t ageGroup);

// How mortality differs from place to place: for each cause a smooth field over the region, so that neighbours resemble
// each other, and a little chance of each zone's own. 1 is the average.
class MortalityMap {
 public:
  MortalityMap(Random& random, const SampleRegion& region);

  [[nodiscard]] double factor(Cause cause, std::size_t zone) const;

 private:
  std::vector<std::array<double, kCauses>> factors_;  // by zone
};

// How mortality of a cause changes, as a factor of the first year's.
[[nodiscard]] double trend(Cause cause, int years);

}  // namespace study
