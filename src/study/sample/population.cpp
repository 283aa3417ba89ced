#include "study/sample/population.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace study {

namespace {

using Shares = std::array<double, kAgeGroups>;

// Per cent of the persons by age, of a young city and of the ageing country, in the shapes that southern Europe had
// around the year 2000.
constexpr Shares kCityAges{0.95, 3.6, 4.6, 5.0, 5.8, 7.4, 8.4, 8.3, 8.1, 7.4,
                           6.5,  6.1, 5.3, 4.9, 5.3, 4.7, 3.6, 2.2, 1.85};
constexpr Shares kCountryAges{0.6, 2.3, 3.3, 4.1, 5.0, 6.0, 6.4, 6.4, 6.7, 6.5,
                              6.0, 5.8, 5.6, 6.3, 8.2, 8.2, 6.3, 3.8, 2.5};
// The share of men at each age.
constexpr Shares kMen{0.515, 0.515, 0.514, 0.514, 0.513, 0.511, 0.510, 0.510, 0.507, 0.505,
                      0.503, 0.500, 0.495, 0.487, 0.474, 0.455, 0.425, 0.385, 0.320};

struct Size {
  double least;
  double most;
  double growth;  // a year
};

constexpr Size sizeOf(Settled settled) {
  switch (settled) {
    case Settled::city:
      return {21'000, 46'000, 0.008};
    case Settled::town:
      return {13'000, 24'000, 0.002};
    case Settled::country:
      break;
  }
  return {3'200, 12'500, -0.009};
}

constexpr double oldShareOf(Settled settled) {
  switch (settled) {
    case Settled::city:
      return 0.05;
    case Settled::town:
      return 0.45;
    case Settled::country:
      break;
  }
  return 0.9;
}

}  // namespace

Population::Population(Random& random, Settled settled) {
  const Size size = sizeOf(settled);
  persons_ = random.between(size.least, size.most);
  growth_ = size.growth + 0.004 * random.normal();
  oldShare_ = std::clamp(oldShareOf(settled) + 0.1 * random.normal(), 0.0, 1.3);
}

std::array<ByAge, kSexes> Population::after(int years) const {
  constexpr double kAgeing = 0.02;  // of the structure, a year
  const double old = oldShare_ + kAgeing * years;
  Shares shares{};
  for (std::size_t age = 0; age < kAgeGroups; ++age) {
    shares[age] = std::max(0.1, kCityAges[age] + old * (kCountryAges[age] - kCityAges[age]));
  }
  const double sum = std::accumulate(shares.begin(), shares.end(), 0.0);
  const double persons = persons_ * std::pow(1 + growth_, years);
  std::array<ByAge, kSexes> result{};
  for (std::size_t age = 0; age < kAgeGroups; ++age) {
    const double both = persons * shares[age] / sum;
    const int men = std::max(1, static_cast<int>(std::lround(both * kMen[age])));
    result[static_cast<std::size_t>(Sex::men)][age] = men;
    result[static_cast<std::size_t>(Sex::women)][age] = std::max(1, static_cast<int>(std::lround(both)) - men);
  }
  return result;
}

}  // namespace study
