#include "study/generator/random.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace study::generator {
namespace {

TEST(GeneratorRandom, SplitMixGivesItsPublishedNumbers) {
  // The first numbers of the authors' program from state 1234567.
  EXPECT_EQ(mix(1234567), 6457827717110365317u);
  EXPECT_EQ(mix(1234567 + 0x9E3779B97F4A7C15u), 3203168211198807973u);
}

TEST(GeneratorRandom, SameSeedSameNumbersOtherStreamOthers) {
  Random a(7);
  Random b(7);
  Random other(7, 1);
  bool differs = false;
  for (int i = 0; i < 100; ++i) {
    const auto number = a.next();
    EXPECT_EQ(number, b.next());
    differs = differs || number != other.next();
  }
  EXPECT_TRUE(differs);
}

TEST(GeneratorRandom, StaysInItsRanges) {
  Random random(1);
  std::set<std::size_t> seen;
  for (int i = 0; i < 2000; ++i) {
    const double unit = random.unit();
    EXPECT_TRUE(unit >= 0 && unit < 1);
    const double value = random.between(-3, 5);
    EXPECT_TRUE(value >= -3 && value < 5);
    seen.insert(random.below(6));
  }
  EXPECT_EQ(seen, (std::set<std::size_t>{0, 1, 2, 3, 4, 5}));
}

class GeneratedPoissonMean : public testing::TestWithParam<double> {};

TEST_P(GeneratedPoissonMean, MeanAndVarianceAreTheMean) {
  Random random(11);
  constexpr int kDraws = 20'000;
  double sum = 0;
  double squares = 0;
  for (int i = 0; i < kDraws; ++i) {
    const long count = random.poisson(GetParam());
    sum += static_cast<double>(count);
    squares += static_cast<double>(count * count);
  }
  const double mean = sum / kDraws;
  EXPECT_NEAR(mean, GetParam(), 5 * std::sqrt(GetParam() / kDraws) + 1e-12);
  EXPECT_NEAR(squares / kDraws - mean * mean, GetParam(), 0.1 * GetParam() + 1e-12);
}

INSTANTIATE_TEST_SUITE_P(SmallAndLarge, GeneratedPoissonMean, testing::Values(0.0, 0.3, 4.0, 30.0, 400.0));

TEST(GeneratorRandom, ShuffleKeepsTheItems) {
  Random random(3);
  std::vector<int> items{1, 2, 3, 4, 5, 6, 7, 8};
  const std::vector<int> before = items;
  random.shuffle(items);
  EXPECT_NE(items, before);
  EXPECT_EQ(std::multiset<int>(items.begin(), items.end()), std::multiset<int>(before.begin(), before.end()));
}

}  // namespace
}  // namespace study::generator
