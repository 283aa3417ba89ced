#include "study/thematic/classes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>

namespace study {
namespace {

using Values = std::vector<double>;

TEST(ClassLimits, ReadableSteps) {
  EXPECT_DOUBLE_EQ(readableStep(1), 1);
  EXPECT_DOUBLE_EQ(readableStep(1.99), 1);
  EXPECT_DOUBLE_EQ(readableStep(2.3), 2);
  EXPECT_DOUBLE_EQ(readableStep(4.9), 2.5);
  EXPECT_DOUBLE_EQ(readableStep(73), 50);
  EXPECT_DOUBLE_EQ(readableStep(0.03), 0.025);
}

TEST(ClassLimits, FiveClassesOfAboutAsManyValues) {
  Values values;
  for (int i = 0; i < 100; ++i) values.push_back(100 + i);
  EXPECT_EQ(classLimits(values), (Values{100, 120, 140, 160, 180, 200}));
}

TEST(ClassLimits, LimitsAreReadable) {
  EXPECT_EQ(classLimits({812.31, 822.8, 851.77, 864.1, 878.02, 893.9, 901.44, 917.3, 933.6, 951.25}),
            (Values{810, 850, 880, 900, 930, 960}));
}

TEST(ClassLimits, HeapedValuesGiveFewerClasses) {
  EXPECT_EQ(classLimits({0, 0, 0, 0, 0, 0, 5, 8, 11, 20}), (Values{0, 5, 10, 22.5}));
}

TEST(ClassLimits, OneValueIsOneClass) {
  const Values limits = classLimits({7.3, 7.3, 7.3});
  ASSERT_EQ(limits.size(), 2U);
  EXPECT_LE(limits[0], 7.3);
  EXPECT_GT(limits[1], 7.3);
  EXPECT_EQ(classLimits({0}).size(), 2U);
}

TEST(ClassLimits, NoValuesNoLimits) { EXPECT_TRUE(classLimits({}).empty()); }

TEST(ClassLimits, EveryValueIsInOneClassAndLimitsAscend) {
  std::mt19937 random(7);
  for (int round = 0; round < 300; ++round) {
    Values values(1 + random() % 200);
    const double scale = std::pow(10.0, static_cast<double>(random() % 7) - 2);
    for (double& value : values) value = static_cast<double>(random() % 1000) / 37 * scale;
    const Values limits = classLimits(values);
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
