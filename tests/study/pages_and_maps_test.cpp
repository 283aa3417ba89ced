#include <gtest/gtest.h>

#include "map_table.h"
#include "page_names.h"
#include "shown_figures.h"

// The figures of the pages, against those of the maps.
namespace studytest {
namespace {

constexpr const char* kGeneral = "Indicadores generales";

double mapFigure(const FigureKey& unit, const std::string& indicator) {
  FigureKey key = unit;
  key.type = kGeneral;
  key.indicator = indicator;
  return mapFigures().at(key);
}

// The cells of a page that hold what the maps show too.
PageTexts sharedCells(const PageTexts& texts) {
  PageTexts shared;
  for (const auto& [place, text] : texts) {
    const std::string& column = place[3];
    const bool isShared =
        column == "Población" || column == "Fallecidos" || column == "Tasa bruta" || column == "Tasa estandarizada";
    if (isShared) shared.emplace(place, text);
  }
  return shared;
}

void enter(ShownFigures& expected, const std::string& row, const FigureKey& unit) {
  const double deaths = mapFigure(unit, "Fallecidos");
  expected[{"0", "", row, "Población"}] = count(mapFigure(unit, "Población"));
  expected[{"0", "", row, "Fallecidos"}] = count(deaths);
  expected[{"0", "", row, "Tasa bruta"}] = rate(mapFigure(unit, "Tasa bruta (x100.000)"), deaths);
  expected[{"0", "", row, "Tasa estandarizada"}] = rate(mapFigure(unit, "Tasa estandarizada (x100.000)"), deaths);
}

// The units of the maps of a year and sex, once each.
std::vector<FigureKey> unitsOf(const std::string& year, const std::string& sex, bool withZones) {
  std::vector<FigureKey> units;
  for (const auto& [key, value] : mapFigures()) {
    if (key.year != year || key.sex != sex || key.type != kGeneral || key.indicator != "Fallecidos") continue;
    if (withZones || key.table != "ZonasBasicas") units.push_back(key);
  }
  return units;
}

std::size_t countEqualIndicators(int kind) {
  std::size_t equal = 0;
  for (const std::string year : kYears) {
    for (const std::string sex : kSexes) {
      ShownFigures expected;
      for (const FigureKey& unit : unitsOf(year, sex, kind == 4)) {
        enter(expected, unit.province.empty() ? unit.name : unit.province + "/" + unit.name, unit);
      }
      const std::string page = yearPage(kind, year, sex);
      equal += countEqual(page, expected, sharedCells(textsOf(readPage(page))));
    }
  }
  return equal;
}

TEST(PagesAndMaps, AgreeInTheIndicatorsOfProvinces) {
  EXPECT_EQ(countEqualIndicators(3), kYears.size() * kSexes.size() * (kProvinces + 1) * 4);
}

TEST(PagesAndMaps, AgreeInTheIndicatorsOfZones) {
  EXPECT_EQ(countEqualIndicators(4), kYears.size() * kSexes.size() * kUnits * 4);
}

TEST(PagesAndMaps, AgreeInTheSumsOfTheDistribution) {
  std::size_t equal = 0;
  for (const std::string year : kYears) {
    for (const std::string sex : kSexes) {
      const std::string page = yearPage(2, year, sex);
      const PageTexts texts = textsOf(readPage(page));
      for (const FigureKey& unit : unitsOf(year, sex, false)) {
        const Place place{"0", "", kAllCauses, unit.name + "/Def."};
        equal += countEqual(page, {{place, count(mapFigure(unit, "Fallecidos"))}}, {{place, texts.at(place)}});
      }
    }
  }
  EXPECT_EQ(equal, kYears.size() * kSexes.size() * (kProvinces + 1));
}

TEST(PagesAndMaps, AgreeInTheSumsOverTheAges) {
  std::size_t equal = 0;
  for (const std::string year : kYears) {
    for (const std::string sex : kSexes) {
      for (const FigureKey& unit : unitsOf(year, sex, false)) {
        for (const ListName& list : kLists) {
          const std::string page = agesPage(year, sex, list, unit.name);
          const PageTexts texts = textsOf(readPage(page));
          const Place deathsPlace{"0", "", kAllCauses, "Total"};
          const Place ratePlace{"1", "", kAllCauses, "Total"};
          const double deaths = mapFigure(unit, "Fallecidos");
          equal += countEqual(
              page, {{deathsPlace, count(deaths)}, {ratePlace, rate(mapFigure(unit, "Tasa bruta (x100.000)"), deaths)}},
              {{deathsPlace, texts.at(deathsPlace)}, {ratePlace, texts.at(ratePlace)}});
        }
      }
    }
  }
  EXPECT_EQ(equal, kYears.size() * kSexes.size() * (kProvinces + 1) * kLists.size() * 2);
}

}  // namespace
}  // namespace studytest
