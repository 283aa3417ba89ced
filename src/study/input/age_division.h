#pragma once

#include <cstddef>
#include <vector>

#include "study/input/fault_log.h"
#include "study/model/age_group.h"

namespace study {

// An age group and the line that first names it.
struct NamedAgeGroup {
  AgeGroup group;
  std::size_t line = 0;
};

// Whether two groups hold the same ages, whatever their names.
[[nodiscard]] bool areSameAges(const AgeGroup& a, const AgeGroup& b);

// Whether all ages of `part` are in `whole`.
[[nodiscard]] bool areWithin(const AgeGroup& part, const AgeGroup& whole);

// Sorts groups by age and checks that every age from 0 upwards is in just one; otherwise there are faults, and none
// are returned.
[[nodiscard]] std::vector<AgeGroup> divideAges(std::vector<NamedAgeGroup> groups, const FileFaults& faults);

}  // namespace study
