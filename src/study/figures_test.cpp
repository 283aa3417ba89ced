#include "study/figures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <set>

#include "text/utf8.h"

namespace study {
namespace {

Counts uniform(int menAtEachAge, int womenAtEachAge) {
  Counts counts;
  counts.persons[0].fill(menAtEachAge);
  counts.persons[1].fill(womenAtEachAge);
  return counts;
}

std::optional<double> find(const std::vector<Figure>& all, std::string_view sex, std::string_view type,
                           std::string_view indicator) {
  for (const Figure& figure : all) {
    if (figure.sex == sex && figure.type == type && figure.indicator == indicator) return figure.value;
  }
  return std::nullopt;
}

std::set<std::string> causesOf(std::string_view list) {
  std::set<std::string> names;
  for (const PublishedCause& cause : publishedCauses()) {
    if (cause.list == list) names.emplace(cause.name);
  }
  return names;
}

TEST(Causes, ReducedListHoldsItsSixteen) {
  const std::set<std::string> expected{
      "Accidentes de tráfico de vehículos de motor",
      "Diabetes mellitus",
      "Enfermedades cerebrovasculares",
      "Enfermedades crónicas de las vías respiratorias inferiores excepto asma",
      "Enfermedades del sistema circulatorio",
      "Enfermedades del sistema digestivo",
      "Enfermedades del sistema respiratorio",
      "Infarto agudo de miocardio",
      "Neumonía",
      "Trastornos mentales orgánicos senil y presenil",
      "Tumor maligno de colon",
      "Tumor maligno de estómago",
      "Tumor maligno de la mama",
      "Tumor maligno de la próstata",
      "Tumor maligno de la tráquea, de los bronquios y del pulmón",
      "Tumores",
  };
  EXPECT_EQ(causesOf(kReducedList), expected);
}

TEST(Causes, EveryDeathIsInOneBroadGroup) {
  std::multiset<Cause> counted;
  for (const PublishedCause& cause : publishedCauses()) {
    if (cause.list == kBroadGroups) counted.insert(cause.sums.begin(), cause.sums.end());
  }
  for (std::size_t i = 0; i < kCauses; ++i) EXPECT_EQ(counted.count(static_cast<Cause>(i)), 1u) << i;
  EXPECT_EQ(causesOf(kBroadGroups).size(), 12u);
}

TEST(Figures, GeneralIndicators) {
  Counts counts = uniform(1'000, 3'000);
  counts.deathsOf(Cause::diabetes, Sex::men)[14] = 5;  // 65-69
  counts.deathsOf(Cause::nervous, Sex::women)[14] = 3;
  const std::vector<Figure> all = figures(counts);
  struct Case {
    std::string_view sex, indicator;
    double value;
  };
  for (const Case& c : {Case{"Ambos sexos", "Fallecidos", 8},
                        {"Ambos sexos", "Población", 76'000},
                        {"Ambos sexos", "Tasa bruta (x100.000)", 8 / 0.76},
                        {"Ambos sexos", "Tasa estandarizada (x100.000)", 8},
                        {"Hombres", "Fallecidos", 5},
                        {"Hombres", "Población", 19'000},
                        {"Hombres", "Tasa bruta (x100.000)", 5 / 0.19},
                        {"Hombres", "Tasa estandarizada (x100.000)", 20},
                        {"Mujeres", "Fallecidos", 3},
                        {"Mujeres", "Población", 57'000},
                        {"Mujeres", "Tasa bruta (x100.000)", 3 / 0.57},
                        {"Mujeres", "Tasa estandarizada (x100.000)", 4}}) {
    const auto value = find(all, c.sex, "Indicadores generales", c.indicator);
    ASSERT_TRUE(value) << c.sex << c.indicator;
    EXPECT_NEAR(*value, c.value, 1e-9) << c.sex << c.indicator;
  }
}

TEST(Figures, CausesAreSummedAndStandardised) {
  Counts counts = uniform(1'000, 1'000);
  counts.deathsOf(Cause::tumourOfColon, Sex::men)[14] = 5;
  counts.deathsOf(Cause::otherTumours, Sex::men)[14] = 10;
  counts.deathsOf(Cause::otherTumours, Sex::women)[14] = 1;
  const std::vector<Figure> all = figures(counts);
  const std::string prefix(kCausePrefix);
  EXPECT_EQ(text::length(prefix), 33u);
  EXPECT_NEAR(find(all, "Hombres", "Lista reducida", prefix + "Tumor maligno de colon").value(), 20, 1e-9);
  EXPECT_NEAR(find(all, "Hombres", "Lista reducida", prefix + "Tumores").value(), 60, 1e-9);
  EXPECT_NEAR(find(all, "Ambos sexos", "Grandes grupos", prefix + "Tumores").value(), 32, 1e-9);
  EXPECT_NEAR(find(all, "Mujeres", "Lista reducida", prefix + "Diabetes mellitus").value(), 0, 1e-9);
}

TEST(Figures, WhatASexCannotDieOfHasNoLine) {
  const std::vector<Figure> all = figures(uniform(10, 10));
  const std::string prostate = std::string(kCausePrefix) + "Tumor maligno de la próstata";
  EXPECT_TRUE(find(all, "Hombres", "Lista reducida", prostate));
  EXPECT_TRUE(find(all, "Ambos sexos", "Lista reducida", prostate));
  EXPECT_FALSE(find(all, "Mujeres", "Lista reducida", prostate));
  EXPECT_EQ(all.size(), 3u * (4 + 12 + 16) - 1);
}

TEST(Figures, NobodyNoRate) {
  const std::vector<Figure> all = figures(uniform(0, 10));
  EXPECT_EQ(find(all, "Hombres", "Indicadores generales", "Población"), 0);
  EXPECT_FALSE(find(all, "Hombres", "Indicadores generales", "Tasa bruta (x100.000)"));
  EXPECT_EQ(std::count_if(all.begin(), all.end(), [](const Figure& f) { return f.sex == "Hombres"; }), 2);
}

}  // namespace
}  // namespace study
