#pragma once

#include <cstddef>
#include <string_view>

#include "study/methods/hidden_cells.h"
#include "study/model/study.h"

namespace study {

// Whether each counted cause is in one published cause of the list, so that the list adds up to all deaths.
[[nodiscard]] bool addsUp(const CauseList& causes, std::string_view list);

// Which deaths of a year may not be published, nor what is computed from them: the same for the maps, the pages and the
// reports, so that none gives away what another keeps.
//
// Two cross-tables share their sums: deaths of the region and its provinces by sex, cause and age; deaths of these and
// of the zones by sex and cause. What one hides of the shared sums the other hides too, until both are protected.
// Deaths before 70, on which years of life lost rest, stand in both like a sum of ages.
class HiddenDeaths {
 public:
  static constexpr std::size_t kAllCauses = 0;
  // A published cause by its place in the study's list.
  [[nodiscard]] static constexpr std::size_t causeNumber(std::size_t published) { return 1 + published; }

  // `year` is an index of the study's years.
  HiddenDeaths(const Study& study, std::size_t year);

  // Of all ages, in any unit.
  [[nodiscard]] bool areHidden(Unit unit, const SexChoice& sex, std::size_t cause = kAllCauses) const;
  // Of an age group, in the region or a province; the number of groups stands for all ages.
  [[nodiscard]] bool areHidden(Unit unit, const SexChoice& sex, std::size_t cause, std::size_t age) const;
  // Of the ages before 70; by cause in the region or a province only.
  [[nodiscard]] bool areEarlyHidden(Unit unit, const SexChoice& sex, std::size_t cause = kAllCauses) const;

 private:
  [[nodiscard]] std::size_t numberOf(Unit unit) const;
  bool shareSums();
  bool share(const std::vector<std::size_t>& ofAges, const std::vector<std::size_t>& ofZones);

  bool isAnyHidden_;
  std::size_t provinces_;
  std::size_t causes_;  // of byZone_: all, the published ones; then the early deaths of all
  std::size_t ages_;    // of byAge_: the groups; then all, then the early ones
  HiddenCells byAge_;   // by sex, unit, cause, age
  HiddenCells byZone_;  // by sex, unit, cause
};

}  // namespace study
