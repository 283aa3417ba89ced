#include "study/methods/life_lost.h"

#include <algorithm>

#include "study/methods/rates.h"

namespace study {

namespace {

// The part of an age group that lies below 70.
struct EarlyPart {
  double share = 0;  // of the group's deaths and persons
  double lost = 0;   // years, by each of those deaths
};

EarlyPart earlyPart(const AgeGroup& age) {
  if (!age.to || age.from >= kLifeLostBefore) return {};
  const double end = std::min(*age.to, kLifeLostBefore);
  return {(end - age.from) / (*age.to - age.from), kLifeLostBefore - (age.from + end) / 2};
}

double personsBelow(const ByAge& persons, const std::vector<AgeGroup>& ages) {
  double sum = 0;
  for (std::size_t age = 0; age < ages.size(); ++age) {
    sum += static_cast<double>(persons[age]) * earlyPart(ages[age]).share;
  }
  return sum;
}

}  // namespace

double yearsOfLifeLost(const ByAge& deaths, const std::vector<AgeGroup>& ages) {
  double years = 0;
  for (std::size_t age = 0; age < ages.size(); ++age) {
    const EarlyPart part = earlyPart(ages[age]);
    years += static_cast<double>(deaths[age]) * part.share * part.lost;
  }
  return years;
}

std::optional<double> yearsOfLifeLostRate(const ByAge& deaths, const ByAge& persons,
                                          const std::vector<AgeGroup>& ages) {
  const double below = personsBelow(persons, ages);
  if (below <= 0) return std::nullopt;
  return yearsOfLifeLost(deaths, ages) / below * kRatePer;
}

}  // namespace study
