#include "study/rates.h"

namespace study {

namespace {

constexpr double kPer = 100'000;
constexpr double kLastAge = 70;

}  // namespace

bool hasRate(const ByAge& persons) { return total(persons) > 0; }

double crudeRate(const ByAge& deaths, const ByAge& persons) {
  return static_cast<double>(total(deaths)) / static_cast<double>(total(persons)) * kPer;
}

double standardisedRate(const ByAge& deaths, const ByAge& persons) {
  double weighted = 0;
  double weights = 0;
  for (std::size_t age = 0; age < kAgeGroups; ++age) {
    weights += kAges[age].standardWeight;
    if (persons[age] > 0) weighted += kAges[age].standardWeight * (static_cast<double>(deaths[age]) / persons[age]);
  }
  return weighted / weights * kPer;
}

double yearsOfLifeLost(const ByAge& deaths) {
  double years = 0;
  for (std::size_t age = 0; age < kAgeGroups; ++age) {
    if (kAges[age].to <= kLastAge) years += deaths[age] * (kLastAge - kAges[age].middle());
  }
  return years;
}

double yearsOfLifeLostRate(const ByAge& deaths, const ByAge& persons) {
  long below = 0;
  for (std::size_t age = 0; age < kAgeGroups; ++age) {
    if (kAges[age].to <= kLastAge) below += persons[age];
  }
  return below == 0 ? 0 : yearsOfLifeLost(deaths) / static_cast<double>(below) * kPer;
}

}  // namespace study
