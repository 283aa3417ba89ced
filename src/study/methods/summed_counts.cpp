#include "study/methods/summed_counts.h"

#include "study/methods/hidden_deaths.h"

namespace study {

std::vector<Counts> summedCounts(const Study& study, std::size_t year) {
  const std::vector<Counts>& zones = study.counts[year];
  std::vector<Counts> units(1 + study.provinces.size(), Counts(study.ages.size(), study.causes.codes.size()));
  for (std::size_t zone = 0; zone < zones.size(); ++zone) units[1 + study.zones[zone].province] += zones[zone];
  for (std::size_t province = 1; province < units.size(); ++province) units.front() += units[province];
  return units;
}

ByAge deathsOf(const Study& study, const Counts& counts, const SexChoice& sex, std::size_t cause) {
  return cause == HiddenDeaths::kAllCauses ? counts.deaths(sex)
                                           : counts.deaths(sex, study.causes.published[cause - 1].sums);
}

}  // namespace study
