#pragma once

#include <cstddef>
#include <vector>

namespace study {

inline constexpr std::size_t kMostClasses = 5;

// The limits of a choropleth map's classes, ascending: class i holds limits[i] <= value < limits[i + 1], and every
// value is in one. Values, none of them negative, are divided by the quantiles of those above 0, so that classes hold
// about as many of them; those that are 0 are in the first class with the least. Each limit is rounded to a number as
// readable as the classes on both its sides allow; values heaped on one number give fewer classes. No values: no
// limits. Values come in groups, such as the sexes, that have a like say however many of their values are above 0: the
// classes are to tell the units of each group apart. A group of which less than a tenth is above 0 has as much less to
// say. Quantile classes: R. Cromley, G. Cromley, "Choropleth map legend design for visualizing community health
// disparities", Int. J. Health Geogr. 8:52 (2009).
[[nodiscard]] std::vector<double> classLimits(const std::vector<std::vector<double>>& groups,
                                              std::size_t classes = kMostClasses);

// The greatest of 1, 2 and 5 times a power of ten that is not above `number`, which is greater than 0.
[[nodiscard]] double readableStep(double number);

}  // namespace study
