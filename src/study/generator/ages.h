#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "study/model/sexes.h"

namespace study::generator {

// An age group of the European standard population of 1976.
struct AgeSpan {
  std::string_view name;
  double middle;  // of its completed years; of the open group, its members' mean age
};

inline constexpr std::size_t kAgeSpans = 19;
inline constexpr std::array<AgeSpan, kAgeSpans> kAges{{
    {"0", 0.5},      {"1-4", 3},      {"5-9", 7.5},    {"10-14", 12.5},  {"15-19", 17.5},
    {"20-24", 22.5}, {"25-29", 27.5}, {"30-34", 32.5}, {"35-39", 37.5},  {"40-44", 42.5},
    {"45-49", 47.5}, {"50-54", 52.5}, {"55-59", 57.5}, {"60-64", 62.5},  {"65-69", 67.5},
    {"70-74", 72.5}, {"75-79", 77.5}, {"80-84", 82.5}, {"85 y más", 90},
}};

// A number for each sex and age group.
template <typename T>
using BySexAndAge = std::array<std::array<T, kAgeSpans>, kSexes>;

[[nodiscard]] constexpr std::size_t indexOf(Sex sex) { return static_cast<std::size_t>(sex); }

// How a sex is called in the files.
[[nodiscard]] constexpr std::string_view nameOf(Sex sex) { return sex == Sex::men ? "Hombres" : "Mujeres"; }

// The year from which growth and trends are reckoned.
inline constexpr int kBaseYear = 1999;

}  // namespace study::generator
