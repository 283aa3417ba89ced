#include "study/generator/population.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace study::generator {

namespace {

using Shares = std::array<double, kAgeSpans>;

// Per cent of the persons by age, of a young city and of the ageing country, in the shapes that southern Europe had
// around the year 2000.
constexpr Shares kCityAges{0.95, 3.6, 4.6, 5.0, 5.8, 7.5, 8.7, 8.8, 8.7, 8.0,
                           7.0,  6.3, 5.3, 4.8, 4.6, 4.0, 3.0, 1.8, 1.55};
constexpr Shares kCountryAges{0.65, 2.5, 3.5, 4.3, 5.4, 6.8, 7.3, 7.2, 7.4, 7.1,
                              6.5,  6.0, 5.3, 5.5, 7.2, 7.0, 5.2, 3.0, 2.15};
// The share of men at each age.
constexpr Shares kMen{0.515, 0.515, 0.514, 0.514, 0.513, 0.511, 0.510, 0.510, 0.507, 0.505,
                      0.503, 0.500, 0.495, 0.487, 0.474, 0.455, 0.425, 0.385, 0.320};

// How zones of a kind differ. Sizes before all are scaled to the region's number of persons.
struct Kind {
  double least;     // persons
  double most;      // persons; small zones are more frequent than large ones
  double growth;    // a year
  double oldShare;  // of the country's age structure
};

constexpr Kind kindOf(Settled settled) {
  switch (settled) {
    case Settled::city:
      return {21'000, 46'000, 0.008, 0.05};
    case Settled::town:
      return {11'000, 22'000, 0.002, 0.45};
    case Settled::country:
      break;
  }
  return {220, 12'500, -0.009, 0.9};
}

double relativeSize(Random& random, Settled settled) {
  const Kind kind = kindOf(settled);
  return kind.least * std::pow(kind.most / kind.least, random.unit());
}

double personsFor(std::size_t zones) { return 2'000'000 * std::pow(static_cast<double>(zones) / 120, 0.7); }

}  // namespace

Population::Population(Random& random, Settled settled, double persons) : persons_(persons) {
  const Kind kind = kindOf(settled);
  growth_ = kind.growth + 0.004 * random.normal();
  oldShare_ = std::clamp(kind.oldShare + 0.1 * random.normal(), 0.0, 1.3);
  for (auto& ages : irregularities_) {
    for (double& irregularity : ages) irregularity = random.normal();
  }
}

BySexAndAge<long> Population::in(int year) const {
  constexpr double kAgeing = 0.02;  // of the structure, a year
  const double old = oldShare_ + kAgeing * (year - kBaseYear);
  Shares shares{};
  for (std::size_t age = 0; age < kAgeSpans; ++age) {
    shares[age] = std::max(0.1, kCityAges[age] + old * (kCountryAges[age] - kCityAges[age]));
  }
  const double sum = std::accumulate(shares.begin(), shares.end(), 0.0);
  const double persons = persons_ * std::pow(1 + growth_, year - kBaseYear);
  BySexAndAge<long> result{};
  for (const Sex sex : kBothSexes) {
    for (std::size_t age = 0; age < kAgeSpans; ++age) {
      const double ofSex = sex == Sex::men ? kMen[age] : 1 - kMen[age];
      const double expected = persons * shares[age] / sum * ofSex;
      const double irregular = expected + std::sqrt(expected) * irregularities_[indexOf(sex)][age];
      result[indexOf(sex)][age] = std::max(0L, std::lround(irregular));
    }
  }
  return result;
}

std::vector<Population> makePopulations(Random& random, const Region& region) {
  std::vector<double> sizes;
  for (const RegionZone& zone : region.zones) sizes.push_back(relativeSize(random, zone.settled));
  const double scale = personsFor(sizes.size()) / std::accumulate(sizes.begin(), sizes.end(), 0.0);
  std::vector<Population> populations;
  for (std::size_t zone = 0; zone < sizes.size(); ++zone) {
    populations.emplace_back(random, region.zones[zone].settled, scale * sizes[zone]);
  }
  return populations;
}

}  // namespace study::generator
