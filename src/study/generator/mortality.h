#pragma once

#include <cstddef>
#include <vector>

#include "study/generator/ages.h"
#include "study/generator/random.h"
#include "study/generator/region.h"

namespace study::generator {

// Deaths expected in the middle of an age group per person and year, before place and year change them: a Gompertz
// curve (B. Gompertz, 1825: mortality grows by a constant factor with each year of age), with parts of its own for the
// first year of life, children and young adults. `cause` is an index of the cause patterns.
[[nodiscard]] double baseMortality(std::size_t cause, Sex sex, std::size_t age);

// How mortality differs from place to place: for each cause a smooth field over the region, so that neighbours resemble
// each other, and a little chance of each zone's own. 1 is the average.
class MortalityMap {
 public:
  MortalityMap(Random& random, const Region& region);

  [[nodiscard]] double factor(std::size_t cause, std::size_t zone) const { return factors_[cause][zone]; }

 private:
  std::vector<std::vector<double>> factors_;  // by cause, by zone
};

// How mortality of a cause has changed in a year, as a factor of the base year's.
[[nodiscard]] double trend(std::size_t cause, int year);

}  // namespace study::generator
