#pragma once

#include <optional>
#include <vector>

#include "study/model/age_group.h"
#include "study/model/counts.h"

// Potential years of life lost before 70, or another age, of all deaths or of those of some causes.
//
// Each death below 70 loses 70 less the middle of its age group. Of a group that reaches over 70 only the part below 70
// counts: its deaths and persons are taken as evenly spread over its years. Of an open group's years nothing is known;
// it never counts. Formula: J.-M. Romeder, J. McWhinnie, "Potential years of life lost between ages 1 and 70: an
// indicator of premature mortality for health planning", International Journal of Epidemiology 6 (1977), 143-151; here
// counted from birth.
namespace study {

inline constexpr double kLifeLostBefore = 70;

// Deaths in the age groups that begin before 70, on which years of life lost rest; open groups are left out.
[[nodiscard]] long earlyDeaths(const ByAge& deaths, const std::vector<AgeGroup>& ages);

// In years. `ages` are the groups of the counts.
[[nodiscard]] double yearsOfLifeLost(const ByAge& deaths, const std::vector<AgeGroup>& ages,
                                     double before = kLifeLostBefore);

// Years lost per 100,000 persons below 70. None: there is nobody below 70.
[[nodiscard]] std::optional<double> yearsOfLifeLostRate(const ByAge& deaths, const ByAge& persons,
                                                        const std::vector<AgeGroup>& ages,
                                                        double before = kLifeLostBefore);

}  // namespace study
