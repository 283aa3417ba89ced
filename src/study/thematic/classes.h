#pragma once

#include <cstddef>
#include <vector>

namespace study {

inline constexpr std::size_t kMostClasses = 5;

// The limits of a choropleth map's classes, ascending: class i holds limits[i] <= value < limits[i + 1], and every
// value is in one. Quantiles of the values (each class holds about as many), rounded to readable numbers as coarse as
// the narrowest class allows; values heaped on one number give fewer classes. No values: no limits. Quantile classes:
// R. Cromley, G. Cromley, "Choropleth map legend design for visualizing community health disparities", Int. J. Health
// Geogr. 8:52 (2009).
[[nodiscard]] std::vector<double> classLimits(std::vector<double> values, std::size_t classes = kMostClasses);

// The greatest of 1, 2, 2.5 and 5 times a power of ten that is not above `number`, which is greater than 0.
[[nodiscard]] double readableStep(double number);

}  // namespace study
