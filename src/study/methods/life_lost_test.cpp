#include "study/methods/life_lost.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string_view>

namespace study {
namespace {

std::vector<AgeGroup> groups(std::initializer_list<std::string_view> names) {
  std::vector<AgeGroup> ages;
  for (const std::string_view name : names) ages.push_back(parseAgeGroup(name).value());
  return ages;
}

TEST(LifeLost, IsSeventyLessTheMiddleOfTheAgeGroup) {
  struct Case {
    std::string_view age;
    double lost;
  };
  for (const Case& c : {Case{"0", 69.5},
                        {"1-4", 67},
                        {"5-9", 62.5},
                        {"20-24", 47.5},
                        {"65-69", 2.5},
                        {"69", 0.5},
                        {"70-74", 0},
                        {"85+", 0}}) {
    EXPECT_DOUBLE_EQ(yearsOfLifeLost({1}, groups({c.age})), c.lost) << c.age;
  }
}

TEST(LifeLost, IsSummedOverTheAges) {
  const auto ages = groups({"0", "1-4", "5-69", "70+"});
  EXPECT_DOUBLE_EQ(yearsOfLifeLost({2, 1, 4, 100}, ages), 2 * 69.5 + 67 + 4 * 32.5);
  EXPECT_EQ(yearsOfLifeLost({0, 0, 0, 9}, ages), 0);
}

// By hand: 125 * 62.5 + 316 * 55 + 472 * 45 + 471 * 35 + 767 * 25 + 1,459 * 15 + 2,611 * 5 = 117,032.5.
TEST(LifeLost, AgreesWithASumByHand) {
  const auto ages = groups({"0-4", "5-14", "15-24", "25-34", "35-44", "45-54", "55-64", "65+"});
  const ByAge deaths{125, 316, 472, 471, 767, 1'459, 2'611, 15'277};
  EXPECT_EQ(total(deaths), 21'498);
  EXPECT_NEAR(yearsOfLifeLost(deaths, ages, 65), 117'032.5, 1e-9);
  // The same deaths before 70: each of them loses five years more.
  EXPECT_DOUBLE_EQ(yearsOfLifeLost(deaths, ages), 117'032.5 + 5 * 6'221);
}

TEST(LifeLost, CountsGroupsThatReachOverSeventyUpToIt) {
  // A death at 65-74 is below 70 as often as not, and then 2.5 years early.
  EXPECT_DOUBLE_EQ(yearsOfLifeLost({4}, groups({"65-74"})), 5);
  // 40-79: three in four, 15 years early.
  EXPECT_DOUBLE_EQ(yearsOfLifeLost({4}, groups({"40-79"})), 45);
}

TEST(LifeLost, LeavesOpenGroupsOut) {
  EXPECT_EQ(yearsOfLifeLost({4}, groups({"65+"})), 0);
  EXPECT_FALSE(yearsOfLifeLostRate({4}, {1'000}, groups({"65+"})));
}

TEST(LifeLostRate, IsByPersonsBelowSeventy) {
  const auto ages = groups({"20-24", "65-74", "75+"});
  // 190 years of 9,500 + half of 1,000 persons.
  EXPECT_DOUBLE_EQ(yearsOfLifeLostRate({4, 0, 7}, {9'500, 1'000, 70'000}, ages).value(), 1'900);
  EXPECT_EQ(yearsOfLifeLostRate({0, 0, 7}, {9'500, 1'000, 70'000}, ages), 0);
  EXPECT_FALSE(yearsOfLifeLostRate({0, 0, 7}, {0, 0, 70'000}, ages));
}

}  // namespace
}  // namespace study
