#include "study/methods/standard_populations.h"

#include <gtest/gtest.h>

#include <numeric>

namespace study {
namespace {

TEST(PublishedStandards, CoverALifeAndWeighAHundredThousand) {
  ASSERT_EQ(publishedStandards().size(), 2u);
  for (const PublishedStandard& standard : publishedStandards()) {
    const auto& ages = standard.ages;
    const auto& weights = standard.population.weights;
    ASSERT_EQ(ages.size(), weights.size()) << standard.setting;
    EXPECT_EQ(ages.front().from, 0) << standard.setting;
    for (std::size_t i = 1; i < ages.size(); ++i) EXPECT_EQ(ages[i].from, ages[i - 1].to) << standard.setting;
    EXPECT_FALSE(ages.back().to) << standard.setting;
    EXPECT_EQ(std::accumulate(weights.begin(), weights.end(), 0.0), 100'000) << standard.setting;
  }
  EXPECT_EQ(publishedStandards()[0].ages.size(), 19u);
  EXPECT_EQ(publishedStandards()[1].ages.size(), 21u);
}

}  // namespace
}  // namespace study
