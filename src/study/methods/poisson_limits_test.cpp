#include "study/methods/poisson_limits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace study {
namespace {

// The probability of at most `count` deaths where `mean` are expected.
double atMost(long count, double mean) {
  double term = std::exp(-mean);
  double sum = term;
  for (long i = 1; i <= count; ++i) {
    term *= mean / static_cast<double>(i);
    sum += term;
  }
  return sum;
}

// Where a growing function of a mean up to 1,000 becomes positive.
double root(const std::function<double(double)>& growing) {
  double low = 0;
  double high = 1'000;
  for (int i = 0; i < 100; ++i) {
    const double middle = (low + high) / 2;
    (growing(middle) < 0 ? low : high) = middle;
  }
  return low;
}

// The exact limits by their definition: the means at which so many deaths or more, or so many or fewer, have a
// probability of 2.5%.
PoissonLimits exactLimits(long deaths) {
  return {root([&](double mean) { return 1 - atMost(deaths - 1, mean) - 0.025; }),
          root([&](double mean) { return 0.025 - atMost(deaths, mean); })};
}

TEST(ByarLimits, AreWithinTwoThousandthsOfTheExactOnesFromTenDeathsOn) {
  // The accuracy that Public Health England's "Technical guide: confidence intervals" (2018) states of them.
  for (const long deaths : {10L, 11L, 15L, 20L, 50L, 100L, 300L}) {
    const PoissonLimits byar = byarLimits(deaths);
    const PoissonLimits exact = exactLimits(deaths);
    EXPECT_NEAR(byar.lower / exact.lower, 1, 0.002) << deaths;
    EXPECT_NEAR(byar.upper / exact.upper, 1, 0.002) << deaths;
  }
}

TEST(ByarLimits, AreRoughForFewDeaths) {
  for (const long deaths : {1L, 2L, 5L, 9L}) {
    const PoissonLimits byar = byarLimits(deaths);
    const PoissonLimits exact = exactLimits(deaths);
    EXPECT_NEAR(byar.lower, exact.lower, 0.02) << deaths;
    EXPECT_NEAR(byar.upper, exact.upper, 0.02) << deaths;
    EXPECT_GT(byar.lower, 0) << deaths;
  }
}

TEST(ByarLimits, OfNoDeathsBeginAtNone) {
  EXPECT_EQ(byarLimits(0).lower, 0);
  EXPECT_NEAR(byarLimits(0).upper, 3.689, 0.03);  // exactly -ln 0.025
}

}  // namespace
}  // namespace study
