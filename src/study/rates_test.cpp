#include "study/rates.h"

#include <gtest/gtest.h>

#include <numeric>
#include <string_view>

namespace study {
namespace {

std::size_t ageNamed(std::string_view name) {
  for (std::size_t age = 0; age < kAgeGroups; ++age) {
    if (kAges[age].name == name) return age;
  }
  ADD_FAILURE() << name;
  return 0;
}

ByAge only(std::string_view name, int count) {
  ByAge result{};
  result[ageNamed(name)] = count;
  return result;
}

TEST(Ages, FollowOneAnotherAndWeighAHundredThousand) {
  int weights = 0;
  for (std::size_t age = 0; age < kAgeGroups; ++age) {
    weights += kAges[age].standardWeight;
    if (age > 0) {
      EXPECT_EQ(kAges[age].from, kAges[age - 1].to);
    }
  }
  EXPECT_EQ(weights, 100'000);
}

TEST(Rates, CrudeRate) {
  ByAge persons{};
  persons.fill(1'000);
  EXPECT_DOUBLE_EQ(crudeRate(only("40-44", 19), persons), 100);
}

TEST(Rates, StandardisedRateWeighsTheAgeGroups) {
  struct Case {
    std::string_view age;
    int deaths;
    double rate;
  };
  // With 1,000 persons at each age, each death adds its group's weight by 1,000.
  for (const Case& c : {Case{"0", 1, 1.6}, {"65-69", 5, 20}, {"85 y más", 30, 30}, {"30-34", 0, 0}}) {
    ByAge persons{};
    persons.fill(1'000);
    EXPECT_NEAR(standardisedRate(only(c.age, c.deaths), persons), c.rate, 1e-12) << c.age;
  }
}

TEST(Rates, StandardisedRateOfTheStandardPopulationIsItsCrudeRate) {
  ByAge persons{};
  ByAge deaths{};
  for (std::size_t age = 0; age < kAgeGroups; ++age) {
    persons[age] = kAges[age].standardWeight;
    deaths[age] = static_cast<int>(age);
  }
  EXPECT_NEAR(standardisedRate(deaths, persons), 171, 1e-9);
  EXPECT_NEAR(crudeRate(deaths, persons), 171, 1e-9);
}

TEST(Rates, StandardisedRateDoesNotDependOnTheAgeStructure) {
  ByAge young{};
  ByAge old{};
  ByAge youngDeaths{};
  ByAge oldDeaths{};
  for (std::size_t age = 0; age < kAgeGroups; ++age) {
    const int factor = static_cast<int>(age) + 1;
    young[age] = 1'000;
    youngDeaths[age] = 2 * factor;
    old[age] = 1'000 * factor;
    oldDeaths[age] = 2 * factor * factor;
  }
  EXPECT_NEAR(standardisedRate(youngDeaths, young), standardisedRate(oldDeaths, old), 1e-9);
  EXPECT_LT(crudeRate(youngDeaths, young), crudeRate(oldDeaths, old));
}

TEST(Rates, AgeGroupWithoutPersonsAddsNothing) {
  EXPECT_NEAR(standardisedRate(only("65-69", 5), only("65-69", 1'000)), 20, 1e-12);
}

TEST(Rates, YearsOfLifeLostBefore70) {
  EXPECT_DOUBLE_EQ(yearsOfLifeLost(only("0", 2)), 139);
  EXPECT_DOUBLE_EQ(yearsOfLifeLost(only("20-24", 4)), 190);
  EXPECT_DOUBLE_EQ(yearsOfLifeLost(only("65-69", 2)), 5);
  EXPECT_DOUBLE_EQ(yearsOfLifeLost(only("70-74", 9)), 0);
  ByAge persons{};
  persons[ageNamed("20-24")] = 9'500;
  persons[ageNamed("80-84")] = 70'000;  // not at risk before 70
  EXPECT_DOUBLE_EQ(yearsOfLifeLostRate(only("20-24", 4), persons), 2'000);
}

TEST(Rates, NoPersonsNoRate) {
  EXPECT_FALSE(hasRate({}));
  EXPECT_TRUE(hasRate(only("5-9", 1)));
}

}  // namespace
}  // namespace study
