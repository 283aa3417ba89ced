#include "study/pages/year_figures.h"

#include "study/methods/summed_counts.h"

namespace study::pages {

std::vector<CauseRow> causeRows(const Study& study, std::string_view list, const SexChoice& sex) {
  std::vector<CauseRow> rows;
  const std::vector<PublishedCause>& published = study.causes.published;
  for (std::size_t i = 0; i < published.size(); ++i) {
    if (published[i].list == list && published[i].existsFor(sex)) rows.push_back({&published[i], 1 + i});
  }
  return rows;
}

YearFigures::YearFigures(const Study& study, std::size_t year)
    : study_(study), year_(year), units_(summedCounts(study, year)), hidden_(study, year) {}

const Counts& YearFigures::counts(Unit unit) const {
  if (unit.kind == UnitKind::zone) return study_.counts[year_][unit.index];
  return units_[unit.kind == UnitKind::region ? 0 : 1 + unit.index];
}

ByAge YearFigures::deaths(Unit unit, const SexChoice& sex, const CauseRow& row) const {
  return deathsOf(study_, counts(unit), sex, row.index);
}

bool YearFigures::areDeathsHidden(Unit unit, const SexChoice& sex, const CauseRow& row, std::size_t age) const {
  return hidden_.areHidden(unit, sex, row.index, age);
}

bool YearFigures::isLifeLostHidden(Unit unit, const SexChoice& sex, const CauseRow& row) const {
  return hidden_.areEarlyHidden(unit, sex, row.index);
}

bool YearFigures::areDeathsHidden(Unit unit, const SexChoice& sex) const { return hidden_.areHidden(unit, sex); }

bool YearFigures::isLifeLostHidden(Unit unit, const SexChoice& sex) const { return hidden_.areEarlyHidden(unit, sex); }

}  // namespace study::pages
