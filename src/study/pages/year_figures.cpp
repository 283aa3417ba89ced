#include "study/pages/year_figures.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "study/methods/life_lost.h"

namespace study::pages {

namespace {

constexpr Unit kWhole{UnitKind::region, 0};

std::vector<std::size_t> numbers(std::size_t from, std::size_t count) {
  std::vector<std::size_t> all(count);
  std::iota(all.begin(), all.end(), from);
  return all;
}

// The sexes of kSexChoices: both, men, women.
Axis sexAxis() { return {kSexChoices.size(), {{0, {1, 2}}}}; }

// The region, the provinces.
Axis unitAxis(const Study& study) { return {1 + study.provinces.size(), {{0, numbers(1, study.provinces.size())}}}; }

// The region, the provinces, the zones.
Axis zoneAxis(const Study& study) {
  Axis axis = unitAxis(study);
  const std::size_t firstZone = axis.size;
  axis.size += study.zones.size();
  for (std::size_t province = 0; province < study.provinces.size(); ++province) {
    axis.sums.push_back({1 + province, {}});
  }
  for (std::size_t zone = 0; zone < study.zones.size(); ++zone) {
    axis.sums[1 + study.zones[zone].province].parts.push_back(firstZone + zone);
  }
  return axis;
}

// All causes, the published ones. Lists that add up do so for the reader too; a cause of both lists is known from
// either.
Axis causeAxis(const CauseList& causes) {
  const std::vector<PublishedCause>& published = causes.published;
  Axis axis{1 + published.size(), {}};
  for (const std::string_view list : {kBroadGroups, kReducedList}) {
    if (!addsUp(causes, list)) continue;
    AxisSum sum;
    for (std::size_t i = 0; i < published.size(); ++i) {
      if (published[i].list == list) sum.parts.push_back(1 + i);
    }
    axis.sums.push_back(sum);
  }
  for (std::size_t i = 0; i < published.size(); ++i) {
    for (std::size_t j = i + 1; j < published.size(); ++j) {
      if (published[i].sums == published[j].sums) axis.sums.push_back({1 + i, {1 + j}});
    }
  }
  return axis;
}

// The age groups, all ages.
Axis ageAxis(const Study& study) {
  const std::size_t ages = study.ages.size();
  return {ages + 1, {{ages, numbers(0, ages)}}};
}

ByAge deathsOf(const Study& study, const Counts& counts, const SexChoice& sex, std::size_t cause) {
  return cause == 0 ? counts.deaths(sex) : counts.deaths(sex, study.causes.published[cause - 1].sums);
}

HiddenCells hiddenDeaths(const Study& study, const std::vector<Counts>& units) {
  if (study.suppressBelow <= 0) return {{}, {}, 0};
  std::vector<long> cells;
  for (const SexChoice& sex : kSexChoices) {
    for (const Counts& counts : units) {
      for (std::size_t cause = 0; cause <= study.causes.published.size(); ++cause) {
        const ByAge deaths = deathsOf(study, counts, sex, cause);
        cells.insert(cells.end(), deaths.begin(), deaths.end());
        cells.push_back(total(deaths));
      }
    }
  }
  return {{sexAxis(), unitAxis(study), causeAxis(study.causes), ageAxis(study)}, std::move(cells), study.suppressBelow};
}

HiddenCells hiddenLifeLost(const Study& study, const std::vector<Counts>& units) {
  if (study.suppressBelow <= 0) return {{}, {}, 0};
  std::vector<long> cells;
  for (const SexChoice& sex : kSexChoices) {
    for (const Counts& counts : units) {
      for (std::size_t cause = 0; cause <= study.causes.published.size(); ++cause) {
        cells.push_back(earlyDeaths(deathsOf(study, counts, sex, cause), study.ages));
      }
    }
  }
  return {{sexAxis(), unitAxis(study), causeAxis(study.causes)}, std::move(cells), study.suppressBelow};
}

// `number` makes a count of the deaths by age of a unit.
template <typename Number>
HiddenCells hiddenInZones(const Study& study, const std::vector<Counts>& units, const std::vector<Counts>& zones,
                          Number number) {
  if (study.suppressBelow <= 0) return {{}, {}, 0};
  std::vector<long> cells;
  for (const SexChoice& sex : kSexChoices) {
    for (const Counts& counts : units) cells.push_back(number(counts.deaths(sex)));
    for (const Counts& counts : zones) cells.push_back(number(counts.deaths(sex)));
  }
  return {{sexAxis(), zoneAxis(study)}, std::move(cells), study.suppressBelow};
}

std::vector<Counts> summedUnits(const Study& study, std::size_t year) {
  std::vector<Counts> units{Counts(study.ages.size(), study.causes.codes.size())};
  for (const Unit province : study.units(UnitKind::province)) {
    units.push_back(study.countsOf(year, province));
    units.front() += units.back();
  }
  return units;
}

std::size_t indexOf(const SexChoice& sex) {
  const auto same = [&](const SexChoice& choice) { return choice.name == sex.name; };
  return static_cast<std::size_t>(std::find_if(kSexChoices.begin(), kSexChoices.end(), same) - kSexChoices.begin());
}

std::size_t indexOf(const Study& study, Unit unit) {
  if (unit == kWhole) return 0;
  return unit.kind == UnitKind::province ? 1 + unit.index : 1 + study.provinces.size() + unit.index;
}

}  // namespace

std::vector<CauseRow> causeRows(const Study& study, std::string_view list, const SexChoice& sex) {
  std::vector<CauseRow> rows;
  const std::vector<PublishedCause>& published = study.causes.published;
  for (std::size_t i = 0; i < published.size(); ++i) {
    if (published[i].list == list && published[i].existsFor(sex)) rows.push_back({&published[i], 1 + i});
  }
  return rows;
}

bool addsUp(const CauseList& causes, std::string_view list) {
  std::vector<int> uses(causes.codes.size());
  for (const PublishedCause& cause : causes.published) {
    if (cause.list != list) continue;
    for (const std::size_t code : cause.sums) ++uses[code];
  }
  return !uses.empty() && std::all_of(uses.begin(), uses.end(), [](int count) { return count == 1; });
}

long earlyDeaths(const ByAge& deaths, const std::vector<AgeGroup>& ages) {
  long sum = 0;
  for (std::size_t age = 0; age < ages.size(); ++age) {
    if (ages[age].to && ages[age].from < kLifeLostBefore) sum += deaths[age];
  }
  return sum;
}

YearFigures::YearFigures(const Study& study, std::size_t year)
    : study_(study),
      year_(year),
      units_(summedUnits(study, year)),
      deaths_(hiddenDeaths(study, units_)),
      lifeLost_(hiddenLifeLost(study, units_)),
      zoneDeaths_(hiddenInZones(study, units_, study.counts[year], [](const ByAge& deaths) { return total(deaths); })),
      zoneLifeLost_(hiddenInZones(study, units_, study.counts[year],
                                  [&](const ByAge& deaths) { return earlyDeaths(deaths, study.ages); })) {}

const Counts& YearFigures::counts(Unit unit) const {
  return unit.kind == UnitKind::zone ? study_.counts[year_][unit.index] : units_[indexOf(study_, unit)];
}

ByAge YearFigures::deaths(Unit unit, const SexChoice& sex, const CauseRow& row) const {
  return deathsOf(study_, counts(unit), sex, row.index);
}

bool YearFigures::areDeathsHidden(Unit unit, const SexChoice& sex, const CauseRow& row, std::size_t age) const {
  return deaths_.isHidden({indexOf(sex), indexOf(study_, unit), row.index, age});
}

bool YearFigures::isLifeLostHidden(Unit unit, const SexChoice& sex, const CauseRow& row) const {
  return lifeLost_.isHidden({indexOf(sex), indexOf(study_, unit), row.index});
}

bool YearFigures::areDeathsHidden(Unit unit, const SexChoice& sex) const {
  return zoneDeaths_.isHidden({indexOf(sex), indexOf(study_, unit)});
}

bool YearFigures::isLifeLostHidden(Unit unit, const SexChoice& sex) const {
  return zoneLifeLost_.isHidden({indexOf(sex), indexOf(study_, unit)});
}

}  // namespace study::pages
