#include "study/methods/figure_book.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

#include "study/methods/hidden_cells.h"
#include "study/methods/rates.h"
#include "study/model/indicators.h"

namespace study {
namespace {

constexpr Unit kWhole{UnitKind::region, 0};
constexpr Unit kFirstProvince{UnitKind::province, 0};
constexpr Unit kSecondProvince{UnitKind::province, 1};
constexpr Unit kFirstZone{UnitKind::zone, 0};
constexpr Unit kLastZone{UnitKind::zone, 2};

enum Code : std::size_t { kColon, kProstate, kOtherTumours, kRest };

std::string ofCause(std::string_view cause) { return std::string(kCausePrefix) + std::string(cause); }

// Two provinces of two and one zones, two age groups of weights 4 and 1, 1,000 persons of each sex and age.
Study sample() {
  Study study;
  study.years = {2000, 2001};
  study.ages = {{"0-64", 0, 65}, {"65 y más", 65, std::nullopt}};
  study.standard = {"", {4, 1}};
  study.causes.codes = {"C18", "C61", "C00", "R99"};
  const std::string broad(kBroadGroups);
  const std::string reduced(kReducedList);
  study.causes.published = {{"", broad, "Tumores", {kColon, kProstate, kOtherTumours}},
                            {"", broad, "Todo lo demás", {kRest}},
                            {"", reduced, "Tumor maligno de la próstata", {kProstate}, true, false},
                            {"", reduced, "Tumores", {kColon, kOtherTumours}}};
  study.provinces = {"Alta", "Baja"};
  study.zones = {{"Norte", 0}, {"Sur", 0}, {"Costa", 1}};
  Counts counts(2, 4);
  for (const Sex sex : kBothSexes) {
    for (std::size_t age = 0; age < 2; ++age) counts.addPersons(sex, age, 1'000);
  }
  study.counts.assign(2, std::vector<Counts>(3, counts));
  return study;
}

std::optional<double> value(const FigureBook& book, Unit unit, std::string_view sex, std::string_view indicator) {
  const Figure* figure = book.find(0, unit, sex, indicator);
  return figure == nullptr ? std::nullopt : std::optional(figure->value);
}

std::string described(const Figure& figure) {
  return std::string(figure.sex()) + " / " + std::string(figure.type()) + " / " + figure.indicator();
}

TEST(FigureBook, ListsFiguresBySexTypeAndList) {
  const FigureBook book(sample());
  const std::vector<std::string> expected{
      "Ambos sexos / Grandes grupos / Tasa estandarizada (x100.000) de Tumores",
      "Ambos sexos / Grandes grupos / Tasa estandarizada (x100.000) de Todo lo demás",
      "Ambos sexos / Indicadores generales / Fallecidos",
      "Ambos sexos / Indicadores generales / Población",
      "Ambos sexos / Indicadores generales / Tasa bruta (x100.000)",
      "Ambos sexos / Indicadores generales / Tasa estandarizada (x100.000)",
      "Ambos sexos / Lista reducida / Tasa estandarizada (x100.000) de Tumor maligno de la próstata",
      "Ambos sexos / Lista reducida / Tasa estandarizada (x100.000) de Tumores",
      "Hombres / Grandes grupos / Tasa estandarizada (x100.000) de Tumores",
      "Hombres / Grandes grupos / Tasa estandarizada (x100.000) de Todo lo demás",
      "Hombres / Indicadores generales / Fallecidos",
      "Hombres / Indicadores generales / Población",
      "Hombres / Indicadores generales / Tasa bruta (x100.000)",
      "Hombres / Indicadores generales / Tasa estandarizada (x100.000)",
      "Hombres / Lista reducida / Tasa estandarizada (x100.000) de Tumor maligno de la próstata",
      "Hombres / Lista reducida / Tasa estandarizada (x100.000) de Tumores",
      "Mujeres / Grandes grupos / Tasa estandarizada (x100.000) de Tumores",
      "Mujeres / Grandes grupos / Tasa estandarizada (x100.000) de Todo lo demás",
      "Mujeres / Indicadores generales / Fallecidos",
      "Mujeres / Indicadores generales / Población",
      "Mujeres / Indicadores generales / Tasa bruta (x100.000)",
      "Mujeres / Indicadores generales / Tasa estandarizada (x100.000)",
      "Mujeres / Lista reducida / Tasa estandarizada (x100.000) de Tumores",  // women have no prostate
  };
  for (const Unit unit : {kWhole, kFirstProvince, kSecondProvince, kFirstZone, kLastZone}) {
    std::vector<std::string> lines;
    for (const Figure& figure : book.of(1, unit)) lines.push_back(described(figure));
    EXPECT_EQ(lines, expected);
  }
}

TEST(FigureBook, ComputesTheGeneralIndicators) {
  Study study = sample();
  study.counts[0][0].addDeaths(kRest, Sex::men, 1, 5);
  study.counts[0][0].addDeaths(kColon, Sex::women, 0, 3);
  const FigureBook book(study);
  struct Case {
    std::string_view sex, indicator;
    double value;
  };
  for (const Case& c : {Case{"Ambos sexos", "Fallecidos", 8},
                        {"Ambos sexos", "Población", 4'000},
                        {"Ambos sexos", "Tasa bruta (x100.000)", 200},
                        {"Ambos sexos", "Tasa estandarizada (x100.000)", 0.8 * 150 + 0.2 * 250},
                        {"Hombres", "Fallecidos", 5},
                        {"Hombres", "Población", 2'000},
                        {"Hombres", "Tasa bruta (x100.000)", 250},
                        {"Hombres", "Tasa estandarizada (x100.000)", 0.2 * 500},
                        {"Mujeres", "Fallecidos", 3},
                        {"Mujeres", "Población", 2'000},
                        {"Mujeres", "Tasa bruta (x100.000)", 150},
                        {"Mujeres", "Tasa estandarizada (x100.000)", 0.8 * 300}}) {
    const auto found = value(book, kFirstZone, c.sex, c.indicator);
    ASSERT_TRUE(found) << c.sex << c.indicator;
    EXPECT_NEAR(*found, c.value, 1e-9) << c.sex << c.indicator;
  }
}

TEST(FigureBook, SumsAndStandardisesCauses) {
  Study study = sample();
  study.counts[0][0].addDeaths(kColon, Sex::men, 0, 5);
  study.counts[0][0].addDeaths(kProstate, Sex::men, 1, 10);
  const FigureBook book(study);
  EXPECT_NEAR(*value(book, kFirstZone, "Hombres", ofCause("Tumor maligno de la próstata")), 200, 1e-9);
  EXPECT_NEAR(*value(book, kFirstZone, "Ambos sexos", ofCause("Tumor maligno de la próstata")), 100, 1e-9);
  EXPECT_FALSE(value(book, kFirstZone, "Mujeres", ofCause("Tumor maligno de la próstata")));
  EXPECT_NEAR(*value(book, kFirstZone, "Mujeres", ofCause("Todo lo demás")), 0, 1e-9);
  // Both lists have tumours; here those of the reduced list are without the prostate's.
  EXPECT_NEAR(*value(book, kFirstZone, "Hombres", ofCause("Tumores")), 400, 1e-9);
  const Figure& broad = book.of(0, kFirstZone)[8];
  EXPECT_EQ(described(broad), "Hombres / Grandes grupos / Tasa estandarizada (x100.000) de Tumores");
  EXPECT_NEAR(broad.value, 600, 1e-9);
  EXPECT_EQ(broad.deaths, 15);
}

TEST(FigureBook, SumsZonesInsteadOfAveragingRates) {
  Study study = sample();
  study.counts[0][0].addDeaths(kRest, Sex::men, 0, 30);
  study.counts[0][1].addPersons(Sex::men, 0, 9'000);  // a large zone where nobody died
  study.counts[0][2].addDeaths(kRest, Sex::men, 0, 6);
  const FigureBook book(study);
  const std::string_view rate = kStandardisedRateIndicator;
  EXPECT_NEAR(*value(book, kFirstZone, "Hombres", rate), 2'400, 1e-9);
  EXPECT_NEAR(*value(book, kFirstProvince, "Hombres", rate), 0.8 * 30 / 11'000 * 100'000, 1e-9);
  EXPECT_NEAR(*value(book, kSecondProvince, "Hombres", rate), 480, 1e-9);
  EXPECT_NEAR(*value(book, kWhole, "Hombres", rate), 0.8 * 36 / 12'000 * 100'000, 1e-9);
  EXPECT_EQ(*value(book, kFirstProvince, "Ambos sexos", kPopulationIndicator), 17'000);
  EXPECT_EQ(*value(book, kWhole, "Ambos sexos", kDeathsIndicator), 36);
}

TEST(FigureBook, KeepsYearsApart) {
  Study study = sample();
  study.counts[1][0].addDeaths(kRest, Sex::men, 0, 7);
  const FigureBook book(study);
  EXPECT_EQ(book.find(0, kFirstZone, "Hombres", kDeathsIndicator)->value, 0);
  EXPECT_EQ(book.find(1, kFirstZone, "Hombres", kDeathsIndicator)->value, 7);
}

TEST(FigureBook, GivesNobodyARate) {
  Study study = sample();
  study.counts[0][0] = Counts(2, 4);
  study.counts[0][0].addPersons(Sex::women, 0, 10);
  const FigureBook book(study);
  EXPECT_EQ(value(book, kFirstZone, "Hombres", kPopulationIndicator), 0);
  EXPECT_EQ(value(book, kFirstZone, "Hombres", kDeathsIndicator), 0);
  for (const std::string& rate :
       {std::string(kCrudeRateIndicator), std::string(kStandardisedRateIndicator), ofCause("Tumores")}) {
    EXPECT_FALSE(value(book, kFirstZone, "Hombres", rate)) << rate;
    EXPECT_FALSE(book.isSuppressed(0, kFirstZone, "Hombres", rate)) << rate;
    EXPECT_TRUE(value(book, kFirstZone, "Ambos sexos", rate)) << rate;
  }
  EXPECT_EQ(book.of(0, kFirstZone).size(), 8u + 2 + 7);
}

TEST(FigureBook, LeavesOutWhatMayNotBePublished) {
  Study study = sample();
  study.suppressBelow = 5;
  study.counts[0][0].addDeaths(kColon, Sex::men, 0, 4);
  study.counts[0][0].addDeaths(kColon, Sex::women, 0, 1);
  study.counts[0][1].addDeaths(kColon, Sex::men, 0, 1);
  const FigureBook book(study);
  struct Case {
    Unit unit;
    std::string_view sex;
    std::string indicator;
    bool suppressed;
  };
  for (const Case& c : {Case{kFirstZone, "Hombres", ofCause("Tumores"), true},
                        {kFirstZone, "Hombres", std::string(kDeathsIndicator), true},
                        {kFirstZone, "Hombres", std::string(kCrudeRateIndicator), true},
                        {kFirstZone, "Hombres", std::string(kPopulationIndicator), false},
                        {kFirstZone, "Hombres", ofCause("Todo lo demás"), false},  // none died
                        // Five: alone beside the other zone's one, and beside the women's one.
                        {kFirstZone, "Ambos sexos", ofCause("Tumores"), true},
                        {kFirstProvince, "Hombres", ofCause("Tumores"), true},
                        {kFirstProvince, "Ambos sexos", ofCause("Tumores"), false},
                        {kFirstProvince, "Mujeres", ofCause("Tumores"), true}}) {
    EXPECT_EQ(book.isSuppressed(0, c.unit, c.sex, c.indicator), c.suppressed) << c.sex << c.indicator;
    EXPECT_EQ(book.find(0, c.unit, c.sex, c.indicator) == nullptr, c.suppressed) << c.sex << c.indicator;
  }
  for (const Figure& figure : book.of(0, kFirstZone)) EXPECT_FALSE(isSuppressed(figure.deaths, 5)) << described(figure);
}

TEST(FigureBook, FindsNothingElse) {
  const FigureBook book(sample());
  EXPECT_EQ(book.find(0, kWhole, "Hombres", "Natalidad"), nullptr);
  EXPECT_EQ(book.find(0, kWhole, "Todos", kDeathsIndicator), nullptr);
  EXPECT_FALSE(book.isSuppressed(0, kWhole, "Todos", kDeathsIndicator));
}

TEST(FigureBook, MayBeMoved) {
  FigureBook book(sample());
  const FigureBook moved(std::move(book));
  EXPECT_EQ(moved.find(0, kLastZone, "Mujeres", kPopulationIndicator)->indicator(), kPopulationIndicator);
}

TEST(Figure, IsUnstableWhenARateRestsOnFewDeaths) {
  Study study = sample();
  study.counts[0][0].addDeaths(kColon, Sex::men, 0, 19);
  study.counts[0][0].addDeaths(kRest, Sex::men, 0, 1);
  const FigureBook book(study);
  EXPECT_TRUE(book.find(0, kFirstZone, "Hombres", ofCause("Tumores"))->unstable());
  EXPECT_FALSE(book.find(0, kFirstZone, "Hombres", kStandardisedRateIndicator)->unstable());
  EXPECT_TRUE(book.find(0, kFirstZone, "Mujeres", kCrudeRateIndicator)->unstable());
  EXPECT_FALSE(book.find(0, kFirstZone, "Mujeres", kDeathsIndicator)->unstable());
  EXPECT_FALSE(book.find(0, kFirstZone, "Mujeres", kPopulationIndicator)->unstable());
}

}  // namespace
}  // namespace study
