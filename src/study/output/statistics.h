#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "study/methods/hidden_deaths.h"
#include "study/model/study.h"

namespace study {

// One line of the statistics map: a unit's number under a group.
struct Statistic {
  std::string_view group;
  std::string label;
  double value;
};

// Which deaths may not be published, by year.
[[nodiscard]] std::vector<HiddenDeaths> hiddenDeaths(const Study& study);

// What the statistics map tells of the region or a province, over all years of the study. What cannot be computed, such
// as a rate of nobody, is left out; so is what rests on hidden deaths, and sums over years of which one is hidden.
[[nodiscard]] std::vector<Statistic> statistics(const Study& study, const std::vector<HiddenDeaths>& hidden, Unit unit);

}  // namespace study
