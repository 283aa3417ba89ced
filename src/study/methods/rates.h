#pragma once

#include <optional>

#include "study/model/counts.h"
#include "study/model/study.h"

// Rates per 100,000 persons and year. No persons, no rate.
namespace study {

inline constexpr double kRatePer = 100'000;

// A rate per 100,000 with its variance and 95% confidence limits.
struct Rate {
  double rate = 0;
  double variance = 0;
  double lower = 0;
  double upper = 0;
};

// Deaths by persons, all ages together; the deaths taken as one Poisson count, so that the variance of the rate is that
// of its deaths by the square of the persons, and the limits are Byar's (see byarLimits).
[[nodiscard]] std::optional<Rate> crudeRate(const ByAge& deaths, const ByAge& persons);

// Direct standardisation: the age groups' rates weighted by the standard population. With w the standard's weights, W
// their sum, d deaths and n persons by age group:
//   rate = sum(w d / n) / W      variance = sum(w^2 d / n^2) / W^2
// Formulas: N. Breslow, N. Day, "Statistical Methods in Cancer Research", vol. II, IARC Scientific Publications 82,
// Lyon 1987, section 2.3 (deaths of an age group taken as a Poisson count).
//
// The limits are those of the number of deaths D, moved and scaled to the rate:
//   limit = rate + sqrt(variance / D) (Byar's limit of D - D)
// Formula: A. Dobson, K. Kuulasmaa, E. Eberle, J. Scherer, "Confidence intervals for weighted sums of Poisson
// parameters", Statistics in Medicine 10 (1991), 457-462. The lower limit is never below 0.
//
// An age group without persons counts as one without deaths: its weight stays in W, deaths recorded in it are left out.
// Without any death the rate, its variance and the lower limit are 0; the upper limit is scaled as if the deaths were
// to fall on the ages in proportion to their persons: sqrt(variance / D) becomes sqrt(sum(w^2 / n) / sum(n)) / W.
[[nodiscard]] std::optional<Rate> standardisedRate(const ByAge& deaths, const ByAge& persons,
                                                   const StandardPopulation& standard);

// Deaths by persons of one age group.
[[nodiscard]] std::optional<double> ageSpecificRate(long deaths, long persons);

}  // namespace study
