#include "study/thematic/classes.h"

#include <algorithm>
#include <cmath>

namespace study {

namespace {

struct Weighed {
  double value = 0;
  double weight = 0;
};

// The values above 0, ascending.
std::vector<Weighed> weighed(const std::vector<std::vector<double>>& groups) {
  constexpr double kLeastShare = 0.1;
  std::vector<Weighed> all;
  for (const std::vector<double>& group : groups) {
    const auto above = static_cast<double>(std::count_if(group.begin(), group.end(), [](double v) { return v > 0; }));
    const double weight = 1 / std::max({above, kLeastShare * static_cast<double>(group.size()), 1.0});
    for (const double value : group) {
      if (value > 0) all.push_back({value, weight});
    }
  }
  std::sort(all.begin(), all.end(), [](const Weighed& x, const Weighed& y) { return x.value < y.value; });
  return all;
}

// The first value of each class but the first. Equal ones stand once, and none equals the least value, whose class
// would be empty.
std::vector<double> quantiles(const std::vector<Weighed>& sorted, std::size_t classes) {
  constexpr double kRounding = 1e-9;
  double whole = 0;
  for (const Weighed& each : sorted) whole += each.weight;
  std::vector<double> limits;
  double reached = 0;
  std::size_t next = 1;
  for (const Weighed& each : sorted) {
    reached += each.weight;
    bool begins = false;
    for (; next < classes && reached > whole * (static_cast<double>(next) / static_cast<double>(classes) + kRounding);
         ++next) {
      begins = true;
    }
    if (begins && each.value > sorted.front().value && (limits.empty() || each.value > limits.back())) {
      limits.push_back(each.value);
    }
  }
  return limits;
}

// A whole number of steps, without the binary rest that a fraction's multiple may have.
double multiple(double count, double step) { return step < 1 ? count / std::round(1 / step) : count * step; }

}  // namespace

double readableStep(double number) {
  const double power = std::pow(10, std::floor(std::log10(number)));
  for (const double factor : {5.0, 2.0}) {
    if (factor * power <= number) return factor * power;
  }
  return power;
}

std::vector<double> classLimits(const std::vector<std::vector<double>>& groups, std::size_t classes) {
  std::vector<double> values;
  for (const std::vector<double>& group : groups) values.insert(values.end(), group.begin(), group.end());
  if (values.empty()) return {};
  const std::vector<Weighed> above = weighed(groups);
  if (above.empty()) return {0, 1};
  const double least = *std::min_element(values.begin(), values.end());
  const double most = above.back().value;
  std::vector<double> raw = quantiles(above, classes);
  // Where all are above 0 the first class begins near the least one.
  raw.insert(raw.begin(), least);
  raw.push_back(std::max(most, raw.back()));

  std::vector<double> limits;
  for (std::size_t i = 1; i + 1 < raw.size(); ++i) {
    // A third of the narrower neighbour at most: rounding then never joins two limits.
    const double below = raw[i] - raw[i - 1];
    const double beyond = raw[i + 1] - raw[i];
    const double step = readableStep(std::min(below, beyond > 0 ? beyond : below) * 2 / 3);
    limits.push_back(multiple(std::round(raw[i] / step), step));
  }
  // The ends, which no legend shows, lie a readable step beyond the values.
  const double gap =
      raw.size() > 2 ? std::max(raw[1] - least, most - raw[raw.size() - 2]) : std::max(most - least, most);
  const double step = readableStep(gap / 2);
  const double start = multiple(std::floor(least / step), step);
  if (!limits.empty() && limits.front() <= start) limits.erase(limits.begin());
  double end = multiple(std::floor(most / step) + 1, step);
  if (!limits.empty() && end <= limits.back()) end = limits.back() + step;
  limits.insert(limits.begin(), start);
  limits.push_back(end);
  return limits;
}

}  // namespace study
