#pragma once

#include <span>
#include <string_view>

namespace study::generator {

// Deaths per 100,000 and year by age: `at70` grows by the factor e^slope a year of age from the age of 15 on; `infant`
// is added in the first year of life, `child` until 15, `young` as a hump around the age of 22, `adult` as one
// around 38.
struct MortalityCurve {
  double at70 = 0;
  double slope = 0;
  double infant = 0;
  double child = 0;
  double young = 0;
  double adult = 0;
};

// A counted cause of death: a group of codes of the International Classification of Diseases, tenth revision.
struct CausePattern {
  std::string_view code;
  MortalityCurve men;
  MortalityCurve women;
  double change;     // of mortality, a year
  double variation;  // from place to place: standard deviation of the logarithm
  double country;    // logarithm of the factor in the country
};

// All counted causes, by code. Invented; of the size and shape that southern Europe had around the year 2000.
[[nodiscard]] std::span<const CausePattern> causePatterns();

}  // namespace study::generator
