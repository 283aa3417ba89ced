#include "study/methods/standard_populations.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <numeric>

namespace study {
namespace {

std::vector<AgeGroup> groups(std::initializer_list<std::string_view> names) {
  std::vector<AgeGroup> ages;
  for (const std::string_view name : names) ages.push_back(parseAgeGroup(name).value());
  return ages;
}

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

TEST(PublishedStandard, GivesTheWeightsOfItsOwnGroups) {
  for (const PublishedStandard& standard : publishedStandards()) {
    const auto found = publishedStandard(standard.setting, standard.ages);
    ASSERT_TRUE(found) << standard.setting;
    EXPECT_EQ(found->weights, standard.population.weights);
    EXPECT_EQ(found->name, standard.population.name);
  }
}

// Children, the working ages, the old and the very old.
TEST(PublishedStandard, SumsGroupsIntoWiderOnes) {
  const auto ages = groups({"0-14", "15-64", "65-84", "85 y más"});
  EXPECT_EQ(publishedStandard("europea 1976", ages)->weights, (std::vector<double>{22'000, 67'000, 10'000, 1'000}));
  EXPECT_EQ(publishedStandard("europea 2013", ages)->weights, (std::vector<double>{16'000, 64'500, 17'000, 2'500}));
}

TEST(PublishedStandard, FitsNoOtherGroups) {
  EXPECT_FALSE(publishedStandard("europea 1999", publishedStandards()[0].ages));
  EXPECT_FALSE(publishedStandard("europea 1976", publishedStandards()[1].ages));      // 85-89 of 85 and more
  EXPECT_FALSE(publishedStandard("europea 1976", groups({"0-16", "17+"})));           // cuts 15-19
  EXPECT_FALSE(publishedStandard("europea 1976", groups({"0-14", "20+"})));           // 15-19 in none
  EXPECT_FALSE(publishedStandard("europea 1976", groups({"0-14", "10-19", "20+"})));  // 10-14 in two
  EXPECT_FALSE(publishedStandard("europea 1976", groups({"0-19", "17+"})));           // 17-19 in two
  EXPECT_FALSE(publishedStandard("europea 1976", {}));
}

}  // namespace
}  // namespace study
