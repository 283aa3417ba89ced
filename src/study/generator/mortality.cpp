#include "study/generator/mortality.h"

#include <array>
#include <cmath>
#include <numbers>

#include "study/generator/cause_patterns.h"

namespace study::generator {

namespace {

double hump(double age, double centre, double width) { return std::exp(-std::pow((age - centre) / width, 2)); }

// A sum of plane waves with random directions: mean 0, standard deviation about 1, alike over an eighth of the region.
class Field {
 public:
  Field(Random& random, double radius) {
    for (Wave& wave : waves_) {
      const double length = radius * random.between(0.8, 2.3);
      const double direction = random.between(0, 2 * std::numbers::pi);
      wave = {2 * std::numbers::pi / length * std::cos(direction), 2 * std::numbers::pi / length * std::sin(direction),
              random.between(0, 2 * std::numbers::pi)};
    }
  }

  [[nodiscard]] double at(Point p) const {
    double sum = 0;
    for (const Wave& wave : waves_) sum += std::sin(wave.x * p.x + wave.y * p.y + wave.phase);
    return sum / std::sqrt(static_cast<double>(waves_.size()) / 2);
  }

 private:
  struct Wave {
    double x;
    double y;
    double phase;
  };
  std::array<Wave, 5> waves_{};
};

}  // namespace

double baseMortality(std::size_t cause, Sex sex, std::size_t age) {
  const CausePattern& pattern = causePatterns()[cause];
  const MortalityCurve& curve = sex == Sex::men ? pattern.men : pattern.women;
  const double middle = kAges[age].middle;
  double per100000 = 0;
  if (age == 0) {
    per100000 = curve.infant;
  } else if (middle < 15) {
    // Childhood is safer than the curve of old age would have it go on.
    per100000 = curve.child;
  } else {
    per100000 = curve.at70 * std::exp(curve.slope * (middle - 70)) + curve.young * hump(middle, 22, 7) +
                curve.adult * hump(middle, 38, 9);
  }
  return per100000 / 100'000;
}

MortalityMap::MortalityMap(Random& random, const Region& region) {
  for (const CausePattern& cause : causePatterns()) {
    const Field field(random, region.radius);
    std::vector<double>& factors = factors_.emplace_back();
    for (const RegionZone& zone : region.zones) {
      double logarithm = cause.variation * (field.at(zone.site) + 0.3 * random.normal());
      if (zone.settled == Settled::country) logarithm += cause.country;
      factors.push_back(std::exp(logarithm));
    }
  }
}

double trend(std::size_t cause, int year) { return std::pow(1 + causePatterns()[cause].change, year - kBaseYear); }

}  // namespace study::generator
