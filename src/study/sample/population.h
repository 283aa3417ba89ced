#pragma once

#include <array>
#include <vector>

#include "study/counts.h"
#include "study/random.h"
#include "study/sample/sample_region.h"

namespace study {

// The people of a zone: how many, how they are spread over the ages, and how they grow.
class Population {
 public:
  Population(Random& random, Settled settled);

  // Persons by sex and age, `years` after the first year. No age group is empty.
  [[nodiscard]] std::array<ByAge, kSexes> after(int years) const;

 private:
  double persons_;
  double growth_;    // a year
  double oldShare_;  // how much of the country's age structure, the rest being the city's
};

}  // namespace study
