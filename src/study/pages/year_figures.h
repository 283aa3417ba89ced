#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "study/model/study.h"
#include "study/pages/hidden_cells.h"

namespace study::pages {

// A row of a table of causes: a published cause, or all causes together.
struct CauseRow {
  const PublishedCause* cause = nullptr;  // none: all
  std::size_t index = 0;                  // 0: all causes, then the published ones in their order

  [[nodiscard]] std::string name() const { return cause == nullptr ? "Todas las causas" : cause->name; }
};

// Rows of one list that a sex has, in the order of the list.
[[nodiscard]] std::vector<CauseRow> causeRows(const Study& study, std::string_view list, const SexChoice& sex);

// Whether each counted cause is in one published cause of the list, so that the list adds up to all deaths.
[[nodiscard]] bool addsUp(const CauseList& causes, std::string_view list);

// Deaths in the age groups that begin before 70, on which years of life lost rest.
[[nodiscard]] long earlyDeaths(const ByAge& deaths, const std::vector<AgeGroup>& ages);

// What was counted in a year, summed for the region and its provinces once, and what of it may not be published.
//
// Cells of deaths are those of sex, unit, cause and age group together, so that neither a row nor a column of a page,
// nor its comparison with the page of another sex, unit or kind gives a hidden count away. Years of life lost are
// published unless the early deaths that they rest on are hidden, by the same rules. Zones, of which no causes are
// published in pages, have cells of sex and unit.
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
  HiddenCells deaths_;         // by sex, unit, cause, age
  HiddenCells lifeLost_;       // by sex, unit, cause
  HiddenCells zoneDeaths_;     // by sex and unit, zones last
  HiddenCells zoneLifeLost_;
};

}  // namespace study::pages
