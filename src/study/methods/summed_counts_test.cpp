#include "study/methods/summed_counts.h"

#include <gtest/gtest.h>

#include "study/methods/hidden_deaths.h"

namespace study {
namespace {

// Two provinces of one zone and two; two counted causes, of which a published cause sums the second.
Study twoProvinces() {
  Study study;
  study.years = {1999};
  study.ages = {{"0-69", 0, 70}, {"70 y más", 70, {}}};
  study.causes.codes = {"C34", "I21"};
  study.causes.published = {{"", std::string(kReducedList), "Infarto", {1}}};
  study.provinces = {"A", "B"};
  study.zones = {{"Z1", 0}, {"Z2", 1}, {"Z3", 1}};
  study.counts.emplace_back();
  for (long zone = 1; zone <= 3; ++zone) {
    Counts counts(2, 2);
    counts.addDeaths(0, Sex::men, 0, zone);
    counts.addDeaths(1, Sex::women, 1, 10 * zone);
    study.counts[0].push_back(counts);
  }
  return study;
}

TEST(SummedCounts, AreOfTheRegionThenOfItsProvinces) {
  const Study study = twoProvinces();
  const std::vector<Counts> units = summedCounts(study, 0);
  ASSERT_EQ(units.size(), 3U);
  EXPECT_EQ(units[0].deaths(kSexChoices[0]), (ByAge{6, 60}));
  EXPECT_EQ(units[1].deaths(kSexChoices[0]), (ByAge{1, 10}));
  EXPECT_EQ(units[2].deaths(kSexChoices[0]), (ByAge{5, 50}));
}

TEST(SummedCounts, GiveDeathsOfACauseByItsNumber) {
  const Study study = twoProvinces();
  const Counts region = summedCounts(study, 0).front();
  EXPECT_EQ(deathsOf(study, region, kSexChoices[0], HiddenDeaths::kAllCauses), (ByAge{6, 60}));
  EXPECT_EQ(deathsOf(study, region, kSexChoices[0], HiddenDeaths::causeNumber(0)), (ByAge{0, 60}));
}

}  // namespace
}  // namespace study
