#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "study/study.h"

namespace study {

// One line of the statistics map: a unit's number under a group.
struct Statistic {
  std::string_view group;
  std::string label;
  double value;
};

// What the statistics map tells of one province, and of the region.
[[nodiscard]] std::vector<Statistic> provinceStatistics(const Study& study, int province);
[[nodiscard]] std::vector<Statistic> regionStatistics(const Study& study);

}  // namespace study
