#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "study/methods/hidden_deaths.h"
#include "study/methods/life_lost.h"
#include "study/model/study.h"

namespace study::pages {

// A row of a table of causes: a published cause, or all causes together.
struct CauseRow {
  const PublishedCause* cause = nullptr;  // none: all
  std::size_t index = 0;                  // 0: all causes, then the published ones in their order

  [[nodiscard]] std::string name() const { return cause == nullptr ? "Todas las causas" : cause->name; }
};

// Rows of one list that a sex has, in the order of the list.
[[nodiscard]] std::vector<CauseRow> causeRows(const Study& study, std::string_view list, const SexChoice& sex);

using study::addsUp;
using study::earlyDeaths;

// What was counted in a year, summed for the region and its provinces once, and what of it may not be published
// (HiddenDeaths). Years of life lost are published unless the early deaths that they rest on are hidden.
class YearFigures {
 public:
  // `year` is an index of the study's years. The study outlives the figures.
  YearFigures(const Study& study, std::size_t year);

  [[nodiscard]] const Study& study() const { return study_; }
  [[nodiscard]] std::string year() const { return std::to_string(study_.years[year_]); }
  [[nodiscard]] const Counts& counts(Unit unit) const;
  [[nodiscard]] ByAge deaths(Unit unit, const SexChoice& sex, const CauseRow& row) const;

  // Of the region or a province. `age` is that of a group, or the number of groups for all ages.
  [[nodiscard]] bool areDeathsHidden(Unit unit, const SexChoice& sex, const CauseRow& row, std::size_t age) const;
  [[nodiscard]] bool isLifeLostHidden(Unit unit, const SexChoice& sex, const CauseRow& row) const;
  // Of all causes and ages, in any unit.
  [[nodiscard]] bool areDeathsHidden(Unit unit, const SexChoice& sex) const;
  [[nodiscard]] bool isLifeLostHidden(Unit unit, const SexChoice& sex) const;

 private:
  const Study& study_;
  std::size_t year_;
  std::vector<Counts> units_;  // the region, the provinces
  HiddenDeaths hidden_;
};

}  // namespace study::pages
