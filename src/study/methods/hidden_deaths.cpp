#include "study/methods/hidden_deaths.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include "study/methods/life_lost.h"
#include "study/methods/summed_counts.h"

namespace study {

namespace {

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

// With one more at the end, which is no sum of the others.
Axis causeAndEarlyAxis(const CauseList& causes) {
  Axis axis = causeAxis(causes);
  ++axis.size;
  return axis;
}

// The age groups, all ages, the ages before 70.
Axis ageAxis(const Study& study) {
  const std::size_t ages = study.ages.size();
  Axis axis{ages + 2, {{ages, numbers(0, ages)}}};
  AxisSum early{ages + 1, {}};
  for (std::size_t age = 0; age < ages; ++age) {
    ByAge one(ages);
    one[age] = 1;
    if (earlyDeaths(one, study.ages) > 0) early.parts.push_back(age);
  }
  if (!early.parts.empty()) axis.sums.push_back(early);
  return axis;
}

HiddenCells cellsByAge(const Study& study, const std::vector<Counts>& units) {
  std::vector<long> cells;
  for (const SexChoice& sex : kSexChoices) {
    for (const Counts& counts : units) {
      for (std::size_t cause = 0; cause <= study.causes.published.size(); ++cause) {
        const ByAge deaths = deathsOf(study, counts, sex, cause);
        cells.insert(cells.end(), deaths.begin(), deaths.end());
        cells.push_back(total(deaths));
        cells.push_back(earlyDeaths(deaths, study.ages));
      }
    }
  }
  return {{sexAxis(), unitAxis(study), causeAxis(study.causes), ageAxis(study)}, std::move(cells), study.suppressBelow};
}

HiddenCells cellsByZone(const Study& study, const std::vector<Counts>& units, const std::vector<Counts>& zones) {
  std::vector<long> cells;
  const auto add = [&](const Counts& counts, const SexChoice& sex) {
    for (std::size_t cause = 0; cause <= study.causes.published.size(); ++cause) {
      cells.push_back(total(deathsOf(study, counts, sex, cause)));
    }
    cells.push_back(earlyDeaths(counts.deaths(sex), study.ages));
  };
  for (const SexChoice& sex : kSexChoices) {
    for (const Counts& counts : units) add(counts, sex);
    for (const Counts& counts : zones) add(counts, sex);
  }
  return {{sexAxis(), zoneAxis(study), causeAndEarlyAxis(study.causes)}, std::move(cells), study.suppressBelow};
}

std::size_t numberOf(const SexChoice& sex) {
  const auto same = [&](const SexChoice& choice) { return choice.name == sex.name; };
  return static_cast<std::size_t>(std::find_if(kSexChoices.begin(), kSexChoices.end(), same) - kSexChoices.begin());
}

}  // namespace

bool addsUp(const CauseList& causes, std::string_view list) {
  std::vector<int> uses(causes.codes.size());
  for (const PublishedCause& cause : causes.published) {
    if (cause.list != list) continue;
    for (const std::size_t code : cause.sums) ++uses[code];
  }
  return !uses.empty() && std::all_of(uses.begin(), uses.end(), [](int count) { return count == 1; });
}

HiddenDeaths::HiddenDeaths(const Study& study, std::size_t year)
    : isAnyHidden_(study.suppressBelow > 0),
      provinces_(study.provinces.size()),
      causes_(1 + study.causes.published.size()),
      ages_(study.ages.size()),
      byAge_({}, {}, 0),
      byZone_({}, {}, 0) {
  if (!isAnyHidden_) return;
  const std::vector<Counts> units = summedCounts(study, year);
  byAge_ = cellsByAge(study, units);
  byZone_ = cellsByZone(study, units, study.counts[year]);
  while (shareSums()) {
    byAge_.protect();
    byZone_.protect();
  }
}

// Whether one of the tables hid what the other did not.
bool HiddenDeaths::shareSums() {
  bool changed = false;
  for (std::size_t sex = 0; sex < kSexChoices.size(); ++sex) {
    for (std::size_t unit = 0; unit <= provinces_; ++unit) {
      for (std::size_t cause = 0; cause < causes_; ++cause) {
        changed = share({sex, unit, cause, ages_}, {sex, unit, cause}) || changed;
      }
      changed = share({sex, unit, kAllCauses, ages_ + 1}, {sex, unit, causes_}) || changed;
    }
  }
  return changed;
}

bool HiddenDeaths::share(const std::vector<std::size_t>& ofAges, const std::vector<std::size_t>& ofZones) {
  if (byAge_.isHidden(ofAges)) return byZone_.hide(ofZones);
  return byZone_.isHidden(ofZones) && byAge_.hide(ofAges);
}

std::size_t HiddenDeaths::numberOf(Unit unit) const {
  if (unit.kind == UnitKind::region) return 0;
  return 1 + unit.index + (unit.kind == UnitKind::zone ? provinces_ : 0);
}

bool HiddenDeaths::areHidden(Unit unit, const SexChoice& sex, std::size_t cause) const {
  return isAnyHidden_ && byZone_.isHidden({study::numberOf(sex), numberOf(unit), cause});
}

bool HiddenDeaths::areHidden(Unit unit, const SexChoice& sex, std::size_t cause, std::size_t age) const {
  return isAnyHidden_ && byAge_.isHidden({study::numberOf(sex), numberOf(unit), cause, age});
}

bool HiddenDeaths::areEarlyHidden(Unit unit, const SexChoice& sex, std::size_t cause) const {
  if (!isAnyHidden_) return false;
  if (unit.kind == UnitKind::zone) return byZone_.isHidden({study::numberOf(sex), numberOf(unit), causes_});
  return byAge_.isHidden({study::numberOf(sex), numberOf(unit), cause, ages_ + 1});
}

}  // namespace study
