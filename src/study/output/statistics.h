#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "study/model/study.h"

namespace study {

// One line of the statistics map: a unit's number under a group.
struct Statistic {
  std::string_view group;
  std::string label;
  double value;
};

// What the statistics map tells of the region or a province, over all years of the study. What cannot be computed, such
// as a rate of nobody, is left out; so is what suppressed deaths would give away.
[[nodiscard]] std::vector<Statistic> statistics(const Study& study, Unit unit);

}  // namespace study
