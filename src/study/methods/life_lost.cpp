#include "study/methods/life_lost.h"

#include <algorithm>

#include "study/methods/rates.h"

namespace study {

namespace {

// The part of an age group that lies below the age before which years are lost.
struct EarlyPart {
  double share = 0;  // of the group's deaths and persons
  double lost = 0;   // years, by each of those deaths
};

EarlyPart earlyPart(const AgeGroup& age, double before) {
  if (!age.to || age.from >= before) return {};
  const double end = std::min(*age.to, before);
  return {(end - age.from) / (*age.to - age.from), before - (age.from + end) / 2};
}

double personsBelow(const ByAge& persons, const std::vector<AgeGroup>& ages, double before) {
  double sum = 0;
  for (std::size_t age = 0; age < ages.size(); ++age) {
    sum += static_cast<double>(persons[age]) * earlyPart(ages[age], before).share;
  }
  return sum;
}

}  // namespace

long earlyDeaths(const ByAge& deaths, const std::vector<AgeGroup>& ages) {
  long sum = 0;
  for (std::size_t age = 0; age < ages.size(); ++age) {
    if (ages[age].to && ages[age].from < kLifeLostBefore) sum += deaths[age];
  }
  return sum;
}

double yearsOfLifeLost(const ByAge& deaths, const std::vector<AgeGroup>& ages, double before) {
  double years = 0;
  for (std::size_t age = 0; age < ages.size(); ++age) {
    const EarlyPart part = earlyPart(ages[age], before);
    years += static_cast<double>(deaths[age]) * part.share * part.lost;
  }
  return years;
}

std::optional<double> yearsOfLifeLostRate(const ByAge& deaths, const ByAge& persons, const std::vector<AgeGroup>& ages,
                                          double before) {
  const double below = personsBelow(persons, ages, before);
  if (below <= 0) return std::nullopt;
  return yearsOfLifeLost(deaths, ages, before) / below * kRatePer;
}

}  // namespace study
