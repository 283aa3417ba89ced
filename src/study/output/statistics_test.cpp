#include "study/output/statistics.h"

#include <gtest/gtest.h>

#include <optional>

#include "study/output/statistics_table.h"

namespace study {
namespace {

// One province of one zone of 10 km by 10 km: 900 children and 100 old people in 1999, twice as many in 2000; one child
// died in each year.
Study study() {
  Study result;
  result.years = {1999, 2000};
  result.ages = {{"0-14", 0, 15}, {"65 y más", 65, {}}};
  result.standard = {"", {1, 1}};
  result.causes.codes = {"R99"};
  result.provinces = {"Sola"};
  result.zones = {{"Única", 0}};
  for (const int times : {1, 2}) {
    Counts counts(2, 1);
    counts.addPersons(Sex::men, 0, 900 * times);
    counts.addPersons(Sex::women, 1, 100 * times);
    counts.addDeaths(0, Sex::men, 0, 1);
    result.counts.push_back({counts});
  }
  const Area square{{{495'000, 0}, {505'000, 0}, {505'000, 10'000}, {495'000, 10'000}}};
  result.zoneAreas = result.provinceAreas = {square};
  result.regionArea = square;
  return result;
}

std::vector<Statistic> linesOf(const Study& study, Unit unit) { return statistics(study, hiddenDeaths(study), unit); }

std::optional<double> value(const std::vector<Statistic>& lines, const std::string& label) {
  for (const Statistic& line : lines) {
    if (line.label == label) return line.value;
  }
  return std::nullopt;
}

TEST(Statistics, TellOfLandPeopleAndDeaths) {
  const std::vector<Statistic> lines = linesOf(study(), {UnitKind::province, 0});
  // The map makes land on its meridian 0.9996 times as long and as wide.
  EXPECT_NEAR(value(lines, "Superficie (km²)").value_or(0), 100 / 0.9996 / 0.9996, 1e-4);
  EXPECT_EQ(value(lines, "Zonas básicas de salud"), 1);
  EXPECT_EQ(value(lines, "Provincias"), std::nullopt);
  EXPECT_NEAR(value(lines, "Densidad en 2000 (habitantes/km²)").value_or(0), 20 * 0.9996 * 0.9996, 1e-4);
  EXPECT_EQ(value(lines, "Población 1999"), 1000);
  EXPECT_EQ(value(lines, "Variación 1999-2000 (%)"), 100);
  EXPECT_EQ(value(lines, "Menores de 15 años en 2000 (%)"), 90);
  EXPECT_NEAR(value(lines, "Índice de envejecimiento en 2000").value_or(0), 100.0 / 9, 1e-9);
  EXPECT_EQ(value(lines, "Fallecidos 1999-2000"), 2);
  EXPECT_NEAR(value(lines, "Tasa bruta 1999-2000 (x100.000)").value_or(0), 2.0 / 3000 * 100'000, 1e-9);
  EXPECT_EQ(value(lines, "AVPP 1999-2000"), 2 * 62.5);
}

TEST(Statistics, OnlyTheRegionCountsItsProvinces) { EXPECT_EQ(value(linesOf(study(), {}), "Provincias"), 1); }

TEST(Statistics, SuppressedDeathsAreNotGivenAway) {
  Study hidden = study();
  hidden.suppressBelow = 3;
  for (const Statistic& line : linesOf(hidden, {})) {
    EXPECT_NE(line.group, "Mortalidad") << line.label;
    EXPECT_NE(line.group, "Años de vida potencialmente perdidos") << line.label;
  }
}

// The province whose deaths must be hidden only because another's are few is silent too.
TEST(Statistics, DeathsThatWouldGiveOthersAwayAreHidden) {
  Study few = study();
  few.suppressBelow = 10;
  few.provinces = {"Alta", "Baja", "Costa"};
  few.zones = {{"A", 0}, {"B", 1}, {"C", 2}};
  few.years = {1999};
  const Counts one = few.counts[0][0];
  few.counts = {{one, one, one}};
  few.counts[0][0].addDeaths(0, Sex::men, 0, 2);
  few.counts[0][1].addDeaths(0, Sex::men, 0, 40);
  few.counts[0][2].addDeaths(0, Sex::men, 0, 80);
  few.provinceAreas = {few.regionArea, few.regionArea, few.regionArea};
  EXPECT_EQ(value(linesOf(few, {}), "Fallecidos 1999"), 125);
  EXPECT_EQ(value(linesOf(few, {UnitKind::province, 0}), "Fallecidos 1999"), std::nullopt);
  EXPECT_EQ(value(linesOf(few, {UnitKind::province, 1}), "Fallecidos 1999"), std::nullopt);
  EXPECT_EQ(value(linesOf(few, {UnitKind::province, 2}), "Fallecidos 1999"), 81);
}

TEST(Statistics, NameYearsThatLieApart) {
  Study apart = study();
  apart.years = {1999, 2002};
  const std::vector<Statistic> lines = linesOf(apart, {});
  EXPECT_EQ(value(lines, "Fallecidos 1999 y 2002"), 2);
  EXPECT_EQ(value(lines, "Fallecidos 1999-2002"), std::nullopt);
  EXPECT_EQ(value(lines, "Variación 1999-2002 (%)"), 100) << "from the one to the other";
  apart.years = {1999, 2000, 2002};
  apart.counts.push_back(apart.counts.back());
  EXPECT_EQ(value(linesOf(apart, {}), "Fallecidos 1999, 2000 y 2002"), 3);
}

TEST(Statistics, NoLandHasNoDensity) {
  Study empty = study();
  empty.regionArea = {};
  EXPECT_EQ(value(linesOf(empty, {}), "Superficie (km²)"), 0);
  EXPECT_EQ(value(linesOf(empty, {}), "Densidad en 2000 (habitantes/km²)"), std::nullopt);
}

TEST(Statistics, SurroundingsHaveTheRegionAsAHole) {
  const Area around = surroundings(study().regionArea);
  ASSERT_EQ(around.size(), 2U);
  EXPECT_DOUBLE_EQ(squareMetres(around[0]), 11'200.0 * 11'200);
  EXPECT_DOUBLE_EQ(squareMetres(around[1]), -1e8);
}

}  // namespace
}  // namespace study
