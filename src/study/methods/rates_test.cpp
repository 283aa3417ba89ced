#include "study/methods/rates.h"

#include <gtest/gtest.h>

#include <cmath>

#include "study/methods/poisson_limits.h"

namespace study {
namespace {

constexpr double kNormal975 = 1.959963984540054;

TEST(CrudeRate, IsDeathsByPersonsOfAllAges) {
  const auto crude = crudeRate({3, 16}, {7'000, 12'000});
  ASSERT_TRUE(crude);
  EXPECT_DOUBLE_EQ(crude->rate, 100);
  EXPECT_DOUBLE_EQ(crude->variance, 100 * (100'000 / 19'000.0));
  EXPECT_DOUBLE_EQ(crude->lower, byarLimits(19).lower / 0.19);
  EXPECT_DOUBLE_EQ(crude->upper, byarLimits(19).upper / 0.19);
}

TEST(AgeSpecificRate, IsOfOneGroup) {
  EXPECT_DOUBLE_EQ(ageSpecificRate(3, 12'000).value(), 25);
  EXPECT_EQ(ageSpecificRate(0, 5), 0);
  EXPECT_FALSE(ageSpecificRate(1, 0));
}

// Down syndrome by the mother's age (below 20, 20-24 ... 40 and over) among children of fifth and later birth order in
// Michigan 1950-1964, standardised to the births of all orders. Data: J. Fleiss, "Statistical Methods for Rates and
// Proportions", 2nd ed., Wiley, New York 1981, table 14.4 (p. 249). Results: the examples of M. Nelson's R package
// "dsrTest" 1.0.0 (2022): the rate, its limits by the normal approximation, and Dobson's with exact Poisson limits.
TEST(StandardisedRate, AgreesWithThePublishedExample) {
  const auto standardised =
      standardisedRate({0, 8, 63, 112, 262, 295}, {327, 30'666, 123'419, 149'919, 104'088, 34'392},
                       {"", {319'933, 931'318, 786'511, 488'235, 237'863, 61'313}});
  ASSERT_TRUE(standardised);
  EXPECT_NEAR(standardised->rate, 75.52901, 5e-6);
  const double halfWidth = kNormal975 * std::sqrt(standardised->variance);
  EXPECT_NEAR(standardised->rate - halfWidth, 67.48907, 5e-6);
  EXPECT_NEAR(standardised->rate + halfWidth, 83.56895, 5e-6);
  // Byar's limits of 740 deaths err by less than a ten-thousandth of the exact ones.
  EXPECT_NEAR(standardised->lower, 67.63284, 2e-4);
  EXPECT_NEAR(standardised->upper, 83.86703, 2e-4);
}

TEST(StandardisedRate, IsTheCrudeOneInAPopulationOfTheStandardsAges) {
  const StandardPopulation standard{"", {10, 20, 70}};
  const ByAge deaths{1, 2, 30};
  const ByAge persons{1'000, 2'000, 7'000};
  for (const ByAge& died : {deaths, ByAge{0, 0, 0}}) {
    const auto standardised = standardisedRate(died, persons, standard);
    const auto crude = crudeRate(died, persons);
    ASSERT_TRUE(standardised && crude);
    EXPECT_NEAR(standardised->rate, crude->rate, 1e-9);
    EXPECT_NEAR(standardised->variance, crude->variance, 1e-9);
    EXPECT_NEAR(standardised->lower, crude->lower, 1e-9);
    EXPECT_NEAR(standardised->upper, crude->upper, 1e-9);
  }
}

TEST(StandardisedRate, DoesNotDependOnTheAgeStructure) {
  const StandardPopulation standard{"", {50, 30, 20}};
  const auto young = standardisedRate({9, 8, 7}, {9'000, 4'000, 1'000}, standard);
  const auto old = standardisedRate({1, 4, 63}, {1'000, 2'000, 9'000}, standard);
  EXPECT_NEAR(young->rate, old->rate, 1e-9);
  EXPECT_NEAR(young->rate, 50 + 60 + 140, 1e-9);
}

TEST(StandardisedRate, TakesAgesWithoutPersonsAsWithoutDeaths) {
  const StandardPopulation standard{"", {25, 75}};
  const auto rate = standardisedRate({2, 9}, {1'000, 0}, standard);
  ASSERT_TRUE(rate);
  EXPECT_DOUBLE_EQ(rate->rate, 50);
  EXPECT_DOUBLE_EQ(rate->variance, 1'250);
  EXPECT_NEAR(rate->upper, 25 * byarLimits(2).upper, 1e-9);
}

TEST(StandardisedRate, WithoutDeathsHasAnUpperLimitOnly) {
  const auto rate = standardisedRate({0, 0}, {4'000, 1'000}, {"", {50, 50}});
  ASSERT_TRUE(rate);
  EXPECT_EQ(rate->rate, 0);
  EXPECT_EQ(rate->variance, 0);
  EXPECT_EQ(rate->lower, 0);
  // One death adds 12.5 at the first age and 50 at the second.
  EXPECT_NEAR(rate->upper, byarLimits(0).upper * std::sqrt((12.5 * 12.5 * 4 + 50 * 50) / 5), 1e-9);
}

TEST(StandardisedRate, HasNoLimitBelowZero) {
  // Nineteen deaths that weigh next to nothing and one that weighs much: scaled limits would reach below zero.
  const auto rate = standardisedRate({19, 1}, {1'000'000, 10}, {"", {50, 50}});
  ASSERT_TRUE(rate);
  EXPECT_EQ(rate->lower, 0);
  EXPECT_GT(rate->upper, rate->rate);
}

TEST(Rates, NobodyHasNone) {
  EXPECT_FALSE(crudeRate({0, 0}, {0, 0}));
  EXPECT_FALSE(standardisedRate({0, 0}, {0, 0}, {"", {1, 1}}));
  EXPECT_TRUE(crudeRate({0, 0}, {0, 1}));
  EXPECT_TRUE(standardisedRate({0, 0}, {0, 1}, {"", {1, 1}}));
}

}  // namespace
}  // namespace study
