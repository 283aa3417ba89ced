#include "study/thematic/classes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>

namespace study {
namespace {

using Values = std::vector<double>;

Values limitsOf(const Values& values) { return classLimits({values}); }

TEST(ClassLimits, ReadableSteps) {
  EXPECT_DOUBLE_EQ(readableStep(1), 1);
  EXPECT_DOUBLE_EQ(readableStep(1.99), 1);
  EXPECT_DOUBLE_EQ(readableStep(2.3), 2);
  EXPECT_DOUBLE_EQ(readableStep(4.9), 2);
  EXPECT_DOUBLE_EQ(readableStep(73), 50);
  EXPECT_DOUBLE_EQ(readableStep(0.03), 0.02);
}

TEST(ClassLimits, FiveClassesOfAboutAsManyValues) {
  Values values;
  for (int i = 0; i < 100; ++i) values.push_back(100 + i);
  EXPECT_EQ(limitsOf(values), (Values{100, 120, 140, 160, 180, 200}));
}

TEST(ClassLimits, LimitsAreReadable) {
  EXPECT_EQ(limitsOf({812.31, 822.8, 851.77, 864.1, 878.02, 893.9, 901.44, 917.3, 933.6, 951.25}),
            (Values{810, 850, 880, 900, 930, 960}));
}

// One narrow class does not make the other limits crooked.
TEST(ClassLimits, EachLimitIsAsReadableAsItsOwnClasses) {
  Values values;
  for (const double start : {1.0, 33.4, 38.6, 117.3, 236.9}) {
    for (int i = 0; i < 10; ++i) values.push_back(start + i * 0.1);
  }
  EXPECT_EQ(limitsOf(values), (Values{0, 34, 38, 100, 237, 240}));
}

// However many there are, they leave the other classes to the values above 0.
TEST(ClassLimits, ZerosAreInTheFirstClass) {
  Values values(900, 0);
  for (int i = 0; i < 100; ++i) values.push_back(100 + i);
  const Values limits = limitsOf(values);
  ASSERT_EQ(limits.size(), 6U);
  EXPECT_EQ(limits.front(), 0);
  EXPECT_EQ((Values{limits.begin() + 1, limits.end() - 1}), (Values{120, 140, 160, 180}));
  EXPECT_EQ(limitsOf({0, 0, 0}), (Values{0, 1}));
}

// Half of a group are 0, the others lie below the values of the other group, which alone would take most limits.
TEST(ClassLimits, GroupsHaveALikeSay) {
  Values few(900, 0);
  for (int i = 0; i < 100; ++i) few.push_back(1 + i * 0.1);
  Values many;
  for (int i = 0; i < 1000; ++i) many.push_back(20 + i * 0.1);
  const Values limits = classLimits({few, many});
  ASSERT_EQ(limits.size(), 6U);
  EXPECT_EQ(std::count_if(limits.begin() + 1, limits.end() - 1, [](double limit) { return limit < 11; }), 2);
  // One of which hardly any is above 0 does not.
  Values rare(990, 0);
  rare.push_back(5);
  EXPECT_GT(classLimits({rare, many})[1], 11);
}

TEST(ClassLimits, HeapedValuesGiveFewerClasses) {
  EXPECT_EQ(limitsOf({0, 5, 5, 5, 5, 5, 5, 5, 9, 20}), (Values{0, 10, 25}));
}

TEST(ClassLimits, OneValueIsOneClass) {
  const Values limits = limitsOf({7.3, 7.3, 7.3});
  ASSERT_EQ(limits.size(), 2U);
  EXPECT_LE(limits[0], 7.3);
  EXPECT_GT(limits[1], 7.3);
  EXPECT_EQ(limitsOf({0}).size(), 2U);
  EXPECT_EQ(limitsOf({0, 0, 4}).size(), 2U);
}

TEST(ClassLimits, NoValuesNoLimits) { EXPECT_TRUE(limitsOf({}).empty()); }

TEST(ClassLimits, EveryValueIsInOneClassAndLimitsAscend) {
  std::mt19937 random(7);
  for (int round = 0; round < 300; ++round) {
    Values values(1 + random() % 200);
    const double scale = std::pow(10.0, static_cast<double>(random() % 7) - 2);
    for (double& value : values) value = static_cast<double>(random() % 1000) / 37 * scale;
    const Values limits = limitsOf(values);
    ASSERT_GE(limits.size(), 2U);
    ASSERT_LE(limits.size(), kMostClasses + 1);
    EXPECT_TRUE(std::is_sorted(limits.begin(), limits.end(), std::less_equal<>()));
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    EXPECT_LE(limits.front(), *least) << round;
    EXPECT_GT(limits.back(), *most) << round;
  }
}

}  // namespace
}  // namespace study
