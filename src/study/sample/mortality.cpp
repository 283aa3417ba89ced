#include "study/sample/mortality.h"

#include <cmath>
#include <numbers>

namespace study {

namespace {

// Deaths per 100,000 and year. `at70` grows by the factor e^slope a year of age; `infant` is added in the first year of
// life, `young` as a hump around the age of 22, `adult` as one around 38.
struct Curve {
  double at70;
  double slope;
  double infant;
  double young;
  double adult;
};

struct CausePattern {
  Cause cause;
  Curve men;
  Curve women;
  double change;     // of mortality, a year
  double variation;  // from place to place: standard deviation of the logarithm
  double country;    // logarithm of the factor in the country
};

// Of the size and shape that southern Europe had around the year 2000.
constexpr std::array<CausePattern, kCauses> kPatterns{{
    {Cause::infectious, {50, 0.075, 6, 1, 14}, {28, 0.100, 5, 0.5, 3.5}, -0.020, 0.12, -0.10},
    {Cause::tumourOfStomach, {75, 0.080, 0, 0, 0.6}, {30, 0.085, 0, 0, 0.5}, -0.030, 0.20, 0.14},
    {Cause::tumourOfColon, {75, 0.085, 0, 0, 0.5}, {45, 0.085, 0, 0, 0.5}, 0.010, 0.10, -0.02},
    {Cause::tumourOfLung, {350, 0.060, 0, 0, 2}, {26, 0.045, 0, 0, 1.5}, -0.005, 0.14, -0.08},
    {Cause::tumourOfBreast, {0.8, 0.060, 0, 0, 0}, {62, 0.040, 0, 0, 5}, -0.015, 0.10, -0.05},
    {Cause::tumourOfProstate, {95, 0.145, 0, 0, 0}, {0, 0, 0, 0, 0}, -0.010, 0.10, 0.02},
    {Cause::otherTumours, {480, 0.070, 3, 3, 8}, {255, 0.075, 3, 2.5, 8}, -0.005, 0.06, 0.0},
    {Cause::diabetes, {60, 0.095, 0, 0.2, 0.6}, {52, 0.120, 0, 0.2, 0.3}, -0.010, 0.18, 0.05},
    {Cause::otherEndocrine, {13, 0.080, 3, 0.3, 0.5}, {12, 0.110, 3, 0.3, 0.3}, 0.010, 0.15, 0.0},
    {Cause::organicMental, {17, 0.200, 0, 0, 0}, {18, 0.205, 0, 0, 0}, 0.045, 0.22, -0.06},
    {Cause::otherMental, {6, 0.050, 0, 2, 2}, {3, 0.080, 0, 0.5, 0.5}, -0.030, 0.20, 0.0},
    {Cause::nervous, {45, 0.105, 6, 2, 2}, {38, 0.115, 6, 1.2, 1.5}, 0.030, 0.10, 0.0},
    {Cause::heartInfarction, {270, 0.080, 0, 0.3, 6}, {92, 0.115, 0, 0.1, 1}, -0.025, 0.16, -0.03},
    {Cause::cerebrovascular, {190, 0.115, 0.5, 0.7, 4}, {120, 0.132, 0.5, 0.6, 2.5}, -0.035, 0.13, 0.10},
    {Cause::otherCirculatory, {330, 0.113, 6, 2, 8}, {205, 0.140, 5, 1.2, 3}, -0.010, 0.08, 0.04},
    {Cause::pneumonia, {36, 0.145, 4, 0.4, 1.2}, {17, 0.152, 4, 0.3, 0.6}, -0.010, 0.20, 0.02},
    {Cause::chronicLowerRespiratory, {150, 0.115, 0, 0, 0.4}, {24, 0.110, 0, 0, 0.2}, -0.020, 0.15, 0.08},
    {Cause::otherRespiratory, {72, 0.125, 6, 0.6, 1.2}, {36, 0.138, 5, 0.4, 0.6}, 0.010, 0.12, 0.0},
    {Cause::digestive, {150, 0.062, 4, 0.6, 9}, {66, 0.098, 3, 0.4, 2.5}, -0.020, 0.09, -0.02},
    {Cause::genitourinary, {40, 0.133, 0.5, 0.2, 0.4}, {28, 0.135, 0.5, 0.2, 0.3}, 0.005, 0.12, 0.0},
    {Cause::perinatalAndCongenital, {1.6, 0.010, 330, 1, 0.5}, {1.4, 0.010, 275, 0.8, 0.4}, -0.030, 0.10, 0.0},
    {Cause::illDefined, {26, 0.120, 22, 2.5, 3}, {20, 0.160, 18, 0.7, 0.8}, -0.010, 0.25, 0.12},
    {Cause::trafficAccidents, {21, 0.018, 0.5, 27, 8}, {9, 0.018, 0.5, 6, 1.5}, -0.020, 0.18, 0.22},
    {Cause::otherExternal, {58, 0.058, 4, 16, 15}, {29, 0.092, 3, 3.5, 3}, -0.005, 0.13, 0.06},
}};

const CausePattern& pattern(Cause cause) { return kPatterns[static_cast<std::size_t>(cause)]; }

constexpr bool patternsStandInOrder() {
  for (std::size_t i = 0; i < kCauses; ++i) {
    if (kPatterns[i].cause != static_cast<Cause>(i)) return false;
  }
  return true;
}
static_assert(patternsStandInOrder());

double hump(double age, double centre, double width) { return std::exp(-std::pow((age - centre) / width, 2)); }

// A sum of plane waves with random directions: mean 0, standard deviation about 1, alike over some 50 km.
class Field {
 public:
  explicit Field(Random& random) {
    for (Wave& wave : waves_) {
      const double length = random.between(150'000, 420'000);
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

double baseMortality(Cause cause, Sex sex, std::size_t ageGroup) {
  const Curve& curve = sex == Sex::men ? pattern(cause).men : pattern(cause).women;
  const double age = kAges[ageGroup].middle();
  double per100000 = curve.young * hump(age, 22, 7) + curve.adult * hump(age, 38, 9);
  // Childhood is safer than the curve of old age would have it go on.
  if (age >= 15) per100000 += curve.at70 * std::exp(curve.slope * (age - 70));
  if (ageGroup == 0) per100000 += curve.infant;
  if (ageGroup >= 1 && age < 15) per100000 += 0.02 * curve.infant + 0.12 * curve.young + 0.05 * curve.adult;
  return per100000 / 100'000;
}

MortalityMap::MortalityMap(Random& random, const SampleRegion& region) : factors_(region.zones.size()) {
  for (std::size_t i = 0; i < kCauses; ++i) {
    const CausePattern& cause = kPatterns[i];
    const Field field(random);
    for (std::size_t zone = 0; zone < factors_.size(); ++zone) {
      double logarithm = cause.variation * (field.at(region.sites[zone]) + 0.3 * random.normal());
      if (region.settled[zone] == Settled::country) logarithm += cause.country;
      factors_[zone][i] = std::exp(logarithm);
    }
  }
}

double MortalityMap::factor(Cause cause, std::size_t zone) const {
  return factors_[zone][static_cast<std::size_t>(cause)];
}

double trend(Cause cause, int years) { return std::pow(1 + pattern(cause).change, years); }

}  // namespace study
