#pragma once

#include <vector>

#include "study/generator/ages.h"
#include "study/generator/random.h"
#include "study/generator/region.h"

namespace study::generator {

// The people of a zone: how many, how they are spread over the ages, and how they grow.
class Population {
 public:
  // `persons` in the base year.
  Population(Random& random, Settled settled, double persons);

  [[nodiscard]] BySexAndAge<long> in(int year) const;

 private:
  double persons_;
  double growth_;                         // a year
  double oldShare_;                       // how much of the country's age structure, the rest being the city's
  BySexAndAge<double> irregularities_{};  // deviations of a group from its expected size, in roots of that
};

// A population for each zone. 120 zones have some two million persons; more zones have more, but fewer each.
[[nodiscard]] std::vector<Population> makePopulations(Random& random, const Region& region);

}  // namespace study::generator
