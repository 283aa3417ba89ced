#include "study/methods/rates.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "study/methods/poisson_limits.h"

namespace study {

namespace {

// The sums over the age groups with persons that a standardised rate is made of.
struct WeightedSums {
  double rate = 0;      // of k d, where k is what one death of the group adds to the rate
  double variance = 0;  // of k^2 d
  double evenly = 0;    // of k^2 n: the variance if each person died
  long deaths = 0;
  long persons = 0;
};

WeightedSums weightedSums(const ByAge& deaths, const ByAge& persons, const std::vector<double>& weights) {
  const double allWeights = std::accumulate(weights.begin(), weights.end(), 0.0);
  WeightedSums sums;
  for (std::size_t age = 0; age < persons.size(); ++age) {
    if (persons[age] <= 0) continue;
    const auto n = static_cast<double>(persons[age]);
    const auto d = static_cast<double>(deaths[age]);
    const double each = weights[age] / allWeights / n * kRatePer;
    sums.rate += each * d;
    sums.variance += each * each * d;
    sums.evenly += each * each * n;
    sums.deaths += deaths[age];
    sums.persons += persons[age];
  }
  return sums;
}

}  // namespace

std::optional<Rate> crudeRate(const ByAge& deaths, const ByAge& persons) {
  const long all = total(persons);
  if (all <= 0) return std::nullopt;
  const long died = total(deaths);
  const double each = kRatePer / static_cast<double>(all);
  const PoissonLimits limits = byarLimits(died);
  const auto count = static_cast<double>(died);
  return Rate{count * each, count * each * each, limits.lower * each, limits.upper * each};
}

std::optional<Rate> standardisedRate(const ByAge& deaths, const ByAge& persons, const StandardPopulation& standard) {
  const WeightedSums sums = weightedSums(deaths, persons, standard.weights);
  if (sums.persons == 0) return std::nullopt;
  const auto count = static_cast<double>(sums.deaths);
  const double scale =
      sums.deaths > 0 ? std::sqrt(sums.variance / count) : std::sqrt(sums.evenly / static_cast<double>(sums.persons));
  const PoissonLimits limits = byarLimits(sums.deaths);
  return Rate{sums.rate, sums.variance, std::max(0.0, sums.rate + scale * (limits.lower - count)),
              sums.rate + scale * (limits.upper - count)};
}

std::optional<double> ageSpecificRate(long deaths, long persons) {
  if (persons <= 0) return std::nullopt;
  return static_cast<double>(deaths) / static_cast<double>(persons) * kRatePer;
}

}  // namespace study
