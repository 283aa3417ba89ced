#include "study/methods/poisson_limits.h"

#include <cmath>

namespace study {

namespace {

constexpr double kNormal975 = 1.959963984540054;  // 97.5th percentile of the standard normal distribution

double limit(double deaths, double z) {
  const double root = 1 - 1 / (9 * deaths) + z / (3 * std::sqrt(deaths));
  return deaths * root * root * root;
}

}  // namespace

PoissonLimits byarLimits(long deaths) {
  const auto count = static_cast<double>(deaths);
  return {deaths == 0 ? 0 : limit(count, -kNormal975), limit(count + 1, kNormal975)};
}

}  // namespace study
