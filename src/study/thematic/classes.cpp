#include "study/thematic/classes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace study {

namespace {

// Interior limits: the first value of each class but the first. Equal ones stand once, and none equals the least value,
// whose class would be empty.
std::vector<double> quantiles(const std::vector<double>& sorted, std::size_t classes) {
  std::vector<double> limits;
  for (std::size_t i = 1; i < classes; ++i) {
    const double limit = sorted[i * sorted.size() / classes];
    if (limit > sorted.front() && (limits.empty() || limit > limits.back())) limits.push_back(limit);
  }
  return limits;
}

double narrowest(const std::vector<double>& limits) {
  double gap = std::numeric_limits<double>::infinity();
  for (std::size_t i = 1; i < limits.size(); ++i) gap = std::min(gap, limits[i] - limits[i - 1]);
  return gap;
}

// A whole number of steps, without the binary rest that a fraction's multiple may have.
double multiple(double count, double step) { return step < 1 ? count / std::round(1 / step) : count * step; }

}  // namespace

double readableStep(double number) {
  const double power = std::pow(10, std::floor(std::log10(number)));
  for (const double factor : {5.0, 2.5, 2.0}) {
    if (factor * power <= number) return factor * power;
  }
  return power;
}

std::vector<double> classLimits(std::vector<double> values, std::size_t classes) {
  if (values.empty()) return {};
  std::sort(values.begin(), values.end());
  std::vector<double> raw = quantiles(values, classes);
  raw.insert(raw.begin(), values.front());
  const double spread = values.back() - values.front();
  // Half the narrowest class: rounding then never joins two limits.
  const double fine = raw.size() > 1 ? narrowest(raw) / 2 : std::max(spread, std::fabs(values.front())) / 2;
  const double step = readableStep(fine > 0 ? fine : 1);

  std::vector<double> limits{multiple(std::floor(values.front() / step), step)};
  for (std::size_t i = 1; i < raw.size(); ++i) {
    const double limit = multiple(std::round(raw[i] / step), step);
    if (limit > limits.back()) limits.push_back(limit);
  }
  const double end = multiple(std::floor(values.back() / step) + 1, step);
  if (limits.size() > 1 && limits.back() >= end) limits.pop_back();
  limits.push_back(end);
  return limits;
}

}  // namespace study
