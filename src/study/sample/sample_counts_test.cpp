#include "study/sample/sample_counts.h"

#include <gtest/gtest.h>

#include "study/figures.h"
#include "study/rates.h"
#include "study/sample/mortality.h"
#include "study/sample/sample_study.h"

namespace study {
namespace {

const Study& sample() {
  static const Study made = makeSampleStudy(kSampleSeed);
  return made;
}

double general(const Counts& counts, std::string_view sex, std::string_view indicator) {
  for (const Figure& figure : figures(counts)) {
    if (figure.sex == sex && figure.type == kGeneralIndicators && figure.indicator == indicator) return figure.value;
  }
  ADD_FAILURE() << sex << indicator;
  return 0;
}

TEST(SampleCounts, RegionLooksLikeAnAgeingRegion) {
  for (int year = kFirstYear; year < kFirstYear + kYears; ++year) {
    const Counts region = sample().regionCounts(year);
    EXPECT_GT(general(region, "Ambos sexos", "Población"), 1'500'000);
    EXPECT_LT(general(region, "Ambos sexos", "Población"), 3'000'000);
    const double crude = general(region, "Ambos sexos", "Tasa bruta (x100.000)");
    EXPECT_GT(crude, 800);
    EXPECT_LT(crude, 1'300);
    const double men = general(region, "Hombres", "Tasa estandarizada (x100.000)");
    const double women = general(region, "Mujeres", "Tasa estandarizada (x100.000)");
    EXPECT_GT(men, 1.4 * women);
    EXPECT_LT(men, 2.3 * women);
    EXPECT_LT(women, crude);
  }
}

TEST(SampleCounts, SexesAndPartsAddUp) {
  const Counts region = sample().regionCounts(2000);
  EXPECT_EQ(general(region, "Hombres", "Fallecidos") + general(region, "Mujeres", "Fallecidos"),
            general(region, "Ambos sexos", "Fallecidos"));
  double deaths = 0;
  double persons = 0;
  for (int province = 0; province < 8; ++province) {
    deaths += general(sample().provinceCounts(2000, province), "Ambos sexos", "Fallecidos");
    persons += general(sample().provinceCounts(2000, province), "Ambos sexos", "Población");
  }
  EXPECT_EQ(deaths, general(region, "Ambos sexos", "Fallecidos"));
  EXPECT_EQ(persons, general(region, "Ambos sexos", "Población"));
}

TEST(SampleCounts, EveryAgeGroupHasPersonsAndNoSexDiesOfTheOthersCauses) {
  for (const std::vector<Counts>& zones : sample().counts) {
    for (const Counts& zone : zones) {
      for (const ByAge& persons : zone.persons) {
        for (const int count : persons) EXPECT_GT(count, 0);
      }
      EXPECT_EQ(total(zone.deathsOf(Cause::tumourOfProstate, Sex::women)), 0);
    }
  }
}

TEST(SampleCounts, YearsDiffer) {
  for (std::size_t zone = 0; zone < sample().zones.size(); ++zone) {
    EXPECT_NE(general(sample().zoneCounts(1999, zone), "Ambos sexos", "Tasa estandarizada (x100.000)"),
              general(sample().zoneCounts(2002, zone), "Ambos sexos", "Tasa estandarizada (x100.000)"));
  }
}

TEST(Mortality, GrowsWithAgeByAConstantFactor) {
  // Diabetes of men has no part of its own at these ages: e^(0.095 * 5) from group to group.
  const double factor = baseMortality(Cause::diabetes, Sex::men, 16) / baseMortality(Cause::diabetes, Sex::men, 15);
  EXPECT_NEAR(factor, 1.608, 0.001);
  EXPECT_GT(baseMortality(Cause::perinatalAndCongenital, Sex::men, 0),
            50 * baseMortality(Cause::perinatalAndCongenital, Sex::men, 5));
  EXPECT_GT(baseMortality(Cause::trafficAccidents, Sex::men, 5), baseMortality(Cause::trafficAccidents, Sex::men, 10));
}

}  // namespace
}  // namespace study
