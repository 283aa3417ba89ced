#pragma once

#include "study/counts.h"

// Rates per 100,000 persons and year. No persons, no rate: the callers ask `hasRate` first.
namespace study {

[[nodiscard]] bool hasRate(const ByAge& persons);

// Deaths by persons.
[[nodiscard]] double crudeRate(const ByAge& deaths, const ByAge& persons);

// Direct standardisation: the age groups' rates weighted by the European standard population of 1976. An age group
// without persons counts as one without deaths. Formula: N. Breslow, N. Day, "Statistical Methods in Cancer Research",
// vol. II, IARC 1987, section 2.3.
[[nodiscard]] double standardisedRate(const ByAge& deaths, const ByAge& persons);

// Years of life lost before 70: each death before that age loses the years from the middle of its age group. Formula:
// J.-M. Romeder, J. McWhinnie, "Potential years of life lost between ages 1 and 70", Int. J. Epidemiol. 6 (1977), here
// counted from birth.
[[nodiscard]] double yearsOfLifeLost(const ByAge& deaths);

// Years of life lost by persons below 70.
[[nodiscard]] double yearsOfLifeLostRate(const ByAge& deaths, const ByAge& persons);

}  // namespace study
