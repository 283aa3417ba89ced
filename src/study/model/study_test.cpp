#include "study/model/study.h"

#include <gtest/gtest.h>

namespace study {
namespace {

constexpr Unit kWhole{UnitKind::region, 0};

// Two provinces of two and one zones in one year; zone z has 10^z men.
Study sample() {
  Study study;
  study.years = {2001};
  study.ages = {{"0 y más", 0, std::nullopt}};
  study.causes.codes = {"todas"};
  study.provinces = {"Alta", "Baja"};
  study.zones = {{"Norte", 0}, {"Sur", 0}, {"Costa", 1}};
  study.counts.resize(1);
  long men = 1;
  for (std::size_t zone = 0; zone < 3; ++zone) {
    Counts counts(1, 1);
    counts.addPersons(Sex::men, 0, men);
    counts.addDeaths(0, Sex::women, 0, 2 * men);
    men *= 10;
    study.counts[0].push_back(counts);
    const double x = static_cast<double>(zone);
    study.zoneAreas.push_back({{{x, 0}, {x + 1, 0}, {x + 1, 1}}});
  }
  study.provinceAreas = {{{{0, 0}, {2, 0}, {2, 1}}}, {{{2, 0}, {3, 0}, {3, 1}}}};
  study.regionArea = {{{0, 0}, {3, 0}, {3, 1}}};
  return study;
}

TEST(Study, ListsItsUnits) {
  const Study study = sample();
  EXPECT_EQ(study.units(UnitKind::region), (std::vector<Unit>{kWhole}));
  EXPECT_EQ(study.units(UnitKind::province), (std::vector<Unit>{{UnitKind::province, 0}, {UnitKind::province, 1}}));
  EXPECT_EQ(study.units(UnitKind::zone),
            (std::vector<Unit>{{UnitKind::zone, 0}, {UnitKind::zone, 1}, {UnitKind::zone, 2}}));
}

TEST(Study, NamesItsUnits) {
  const Study study = sample();
  EXPECT_EQ(study.name(kWhole), "Veldoria");
  EXPECT_EQ(study.name({UnitKind::province, 1}), "Baja");
  EXPECT_EQ(study.name({UnitKind::zone, 1}), "Sur");
}

TEST(Study, FindsTheAreasOfItsUnits) {
  const Study study = sample();
  EXPECT_EQ(extent(study.area(kWhole)), (Extent{0, 0, 3, 1}));
  EXPECT_EQ(extent(study.area({UnitKind::province, 1})), (Extent{2, 0, 3, 1}));
  EXPECT_EQ(extent(study.area({UnitKind::zone, 1})), (Extent{1, 0, 2, 1}));
}

TEST(Study, KnowsTheZonesOfAUnit) {
  const Study study = sample();
  using Zones = std::vector<std::size_t>;
  EXPECT_EQ(study.zonesOf(kWhole), (Zones{0, 1, 2}));
  EXPECT_EQ(study.zonesOf({UnitKind::province, 0}), (Zones{0, 1}));
  EXPECT_EQ(study.zonesOf({UnitKind::province, 1}), (Zones{2}));
  EXPECT_EQ(study.zonesOf({UnitKind::zone, 2}), (Zones{2}));
}

TEST(Study, SumsTheZonesOfAUnit) {
  const Study study = sample();
  EXPECT_EQ(study.countsOf(0, kWhole).persons(Sex::men, 0), 111);
  EXPECT_EQ(study.countsOf(0, {UnitKind::province, 0}).persons(Sex::men, 0), 11);
  EXPECT_EQ(study.countsOf(0, {UnitKind::province, 1}).deaths(0, Sex::women, 0), 200);
  EXPECT_EQ(study.countsOf(0, {UnitKind::zone, 1}).persons(Sex::men, 0), 10);
}

TEST(Causes, ExistForASexThatCanDieOfThem) {
  const PublishedCause prostate{"", std::string(kReducedList), "Tumor maligno de la próstata", {0}, true, false};
  const PublishedCause tumours{"", std::string(kReducedList), "Tumores", {0}};
  EXPECT_TRUE(prostate.existsFor(kSexChoices[0]));
  EXPECT_TRUE(prostate.existsFor(kSexChoices[1]));
  EXPECT_FALSE(prostate.existsFor(kSexChoices[2]));
  for (const SexChoice& sex : kSexChoices) EXPECT_TRUE(tumours.existsFor(sex)) << sex.name;
}

TEST(Sexes, ArePublishedInTheProgramsOrder) {
  EXPECT_EQ(kSexChoices[0].name, "Ambos sexos");
  EXPECT_EQ(kSexChoices[1].name, "Hombres");
  EXPECT_EQ(kSexChoices[2].name, "Mujeres");
  EXPECT_TRUE(kSexChoices[0].includes(Sex::men) && kSexChoices[0].includes(Sex::women));
  EXPECT_TRUE(kSexChoices[1].includes(Sex::men) && !kSexChoices[1].includes(Sex::women));
  EXPECT_TRUE(kSexChoices[2].includes(Sex::women) && !kSexChoices[2].includes(Sex::men));
}

}  // namespace
}  // namespace study
