#include "study/methods/hidden_deaths.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "study/methods/figure_book.h"
#include "study/methods/life_lost.h"
#include "study/model/indicators.h"

namespace study {
namespace {

constexpr int kBelow = 15;

// Three provinces of two zones, three counted causes of which two make a broad group; counts are few and random.
Study randomStudy(unsigned seed) {
  std::mt19937 random(seed);
  Study study;
  study.years = {1999};
  study.suppressBelow = kBelow;
  study.ages = {{"0-69", 0, 70}, {"70-84", 70, 85}, {"85 y más", 85, {}}};
  study.standard = {"", {3, 2, 1}};
  study.causes.codes = {"C18", "C34", "I21"};
  const std::string broad(kBroadGroups);
  study.causes.published = {
      {"", broad, "Tumores", {0, 1}}, {"", broad, "Circulatorio", {2}}, {"", std::string(kReducedList), "Colon", {0}}};
  study.provinces = {"A", "B", "C"};
  study.counts.emplace_back();
  for (std::size_t zone = 0; zone < 6; ++zone) {
    study.zones.push_back({"Z" + std::to_string(zone), zone / 2});
    Counts counts(3, 3);
    for (const Sex sex : kBothSexes) {
      for (std::size_t age = 0; age < 3; ++age) {
        counts.addPersons(sex, age, 1'000);
        for (std::size_t cause = 0; cause < 3; ++cause) {
          if (random() % 3 != 0) counts.addDeaths(cause, sex, age, static_cast<long>(random() % 12));
        }
      }
    }
    study.counts.front().push_back(counts);
  }
  return study;
}

// A figure of a cross-table, as a reader sees it.
struct Cell {
  long deaths = 0;
  bool isHidden = false;
};

// Whether a reader finds a small number by subtracting the published parts of a published sum, or is shown one.
void expectSafe(const Cell& sum, const std::vector<Cell>& parts, const std::string& what) {
  long together = 0;
  std::size_t hidden = 0;
  for (const Cell& part : parts) {
    EXPECT_TRUE(part.isHidden || !isSuppressed(part.deaths, kBelow)) << what;
    if (!part.isHidden) continue;
    ++hidden;
    together += part.deaths;
  }
  EXPECT_TRUE(sum.isHidden || !isSuppressed(sum.deaths, kBelow)) << what;
  if (sum.isHidden) {
    EXPECT_GT(hidden, 0U) << what << ": the parts sum to what is hidden";
  } else if (hidden > 0) {
    EXPECT_GT(hidden, 1U) << what;
    EXPECT_GE(together, kBelow) << what;
  }
}

std::vector<Unit> partsOf(const Study& study, Unit unit) {
  if (unit.kind == UnitKind::region) return study.units(UnitKind::province);
  std::vector<Unit> zones;
  for (const std::size_t zone : study.zonesOf(unit)) zones.push_back({UnitKind::zone, zone});
  return zones;
}

class HiddenDeathsOf : public testing::TestWithParam<unsigned> {};
INSTANTIATE_TEST_SUITE_P(RandomStudies, HiddenDeathsOf, testing::Range(0U, 40U));

// In the map tables, where an indicator's figures stand for the deaths that they rest on.
TEST_P(HiddenDeathsOf, CannotBeSubtractedInTheMaps) {
  const Study study = randomStudy(GetParam());
  const FigureBook book(study);
  const auto cell = [&](Unit unit, const SexChoice& sex, const std::string& indicator) {
    const Counts counts = study.countsOf(0, unit);
    long deaths = total(counts.deaths(sex));
    for (const PublishedCause& cause : study.causes.published) {
      if (indicator == std::string(kCausePrefix) + cause.name) deaths = total(counts.deaths(sex, cause.sums));
    }
    return Cell{deaths, book.find(0, unit, sex.name, indicator) == nullptr};
  };
  std::vector<std::string> indicators{std::string(kDeathsIndicator), std::string(kCrudeRateIndicator),
                                      std::string(kStandardisedRateIndicator)};
  for (const PublishedCause& cause : study.causes.published) {
    indicators.push_back(std::string(kCausePrefix) + cause.name);
  }
  std::size_t hidden = 0;
  for (const UnitKind kind : {UnitKind::region, UnitKind::province, UnitKind::zone}) {
    for (const Unit unit : study.units(kind)) {
      for (const std::string& indicator : indicators) {
        const std::string what = study.name(unit) + " " + indicator;
        expectSafe(cell(unit, kSexChoices[0], indicator),
                   {cell(unit, kSexChoices[1], indicator), cell(unit, kSexChoices[2], indicator)}, what);
        hidden += cell(unit, kSexChoices[1], indicator).isHidden ? 1U : 0U;
        for (const SexChoice& sex : kSexChoices) {
          if (kind == UnitKind::zone) continue;
          std::vector<Cell> parts;
          for (const Unit part : partsOf(study, unit)) parts.push_back(cell(part, sex, indicator));
          expectSafe(cell(unit, sex, indicator), parts, what + " of " + std::string(sex.name));
        }
      }
      for (const SexChoice& sex : kSexChoices) {
        expectSafe(cell(unit, sex, indicators[0]), {cell(unit, sex, indicators[3]), cell(unit, sex, indicators[4])},
                   study.name(unit) + " by cause");
      }
    }
  }
  EXPECT_GT(hidden, 0U) << "the study is large enough to hide nothing";
}

// What pages and reports show by age, and what the maps show of all ages, is one table.
TEST_P(HiddenDeathsOf, CannotBeSubtractedOverTheAges) {
  const Study study = randomStudy(GetParam());
  const HiddenDeaths hidden(study, 0);
  for (const Unit unit : {Unit{}, Unit{UnitKind::province, 0}, Unit{UnitKind::province, 2}}) {
    const Counts counts = study.countsOf(0, unit);
    for (const SexChoice& sex : kSexChoices) {
      for (std::size_t cause = 0; cause <= 3; ++cause) {
        const ByAge deaths =
            cause == 0 ? counts.deaths(sex) : counts.deaths(sex, study.causes.published[cause - 1].sums);
        EXPECT_EQ(hidden.areHidden(unit, sex, cause), hidden.areHidden(unit, sex, cause, 3));
        std::vector<Cell> ages;
        for (std::size_t age = 0; age < 3; ++age) {
          ages.push_back({deaths[age], hidden.areHidden(unit, sex, cause, age)});
        }
        const std::string what = study.name(unit) + " " + std::string(sex.name) + " " + std::to_string(cause);
        expectSafe({total(deaths), hidden.areHidden(unit, sex, cause)}, ages, what);
        expectSafe({earlyDeaths(deaths, study.ages), hidden.areEarlyHidden(unit, sex, cause)}, {ages[0]}, what);
      }
    }
  }
}

TEST(HiddenDeaths, AreNoneWhereAllIsPublished) {
  Study study = randomStudy(1);
  study.suppressBelow = 0;
  const HiddenDeaths hidden(study, 0);
  for (const Unit zone : study.units(UnitKind::zone)) {
    for (const SexChoice& sex : kSexChoices) {
      EXPECT_FALSE(hidden.areHidden(zone, sex));
      EXPECT_FALSE(hidden.areEarlyHidden(zone, sex));
    }
  }
}

}  // namespace
}  // namespace study
