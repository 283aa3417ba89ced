#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "study/causes.h"

// Deaths and persons by sex and age, as counted.
namespace study {

inline constexpr std::size_t kAgeGroups = 19;

struct AgeGroup {
  std::string_view name;
  double from;  // completed years
  double to;    // exclusive; of the open group, such that the middle is its members' mean age
  // Weight in the European standard population, of 100,000: J. Waterhouse et al. (eds.), "Cancer Incidence in Five
  // Continents", vol. III, IARC Scientific Publications 15, Lyon 1976.
  int standardWeight;

  [[nodiscard]] double middle() const { return (from + to) / 2; }
};

inline constexpr std::array<AgeGroup, kAgeGroups> kAges{{
    {"0", 0, 1, 1600},       {"1-4", 1, 5, 6400},     {"5-9", 5, 10, 7000},       {"10-14", 10, 15, 7000},
    {"15-19", 15, 20, 7000}, {"20-24", 20, 25, 7000}, {"25-29", 25, 30, 7000},    {"30-34", 30, 35, 7000},
    {"35-39", 35, 40, 7000}, {"40-44", 40, 45, 7000}, {"45-49", 45, 50, 7000},    {"50-54", 50, 55, 7000},
    {"55-59", 55, 60, 6000}, {"60-64", 60, 65, 5000}, {"65-69", 65, 70, 4000},    {"70-74", 70, 75, 3000},
    {"75-79", 75, 80, 2000}, {"80-84", 80, 85, 1000}, {"85 y más", 85, 95, 1000},
}};

enum class Sex { men, women };
inline constexpr std::size_t kSexes = 2;

using ByAge = std::array<int, kAgeGroups>;

// One unit in one year.
struct Counts {
  std::array<ByAge, kSexes> persons{};
  std::array<std::array<ByAge, kSexes>, kCauses> deaths{};

  [[nodiscard]] const ByAge& personsOf(Sex sex) const { return persons[static_cast<std::size_t>(sex)]; }
  [[nodiscard]] const ByAge& deathsOf(Cause cause, Sex sex) const {
    return deaths[static_cast<std::size_t>(cause)][static_cast<std::size_t>(sex)];
  }
  [[nodiscard]] ByAge& deathsOf(Cause cause, Sex sex) {
    return deaths[static_cast<std::size_t>(cause)][static_cast<std::size_t>(sex)];
  }

  // Larger units are the sums of their parts.
  Counts& operator+=(const Counts& other);
};

[[nodiscard]] long total(const ByAge& counts);

}  // namespace study
