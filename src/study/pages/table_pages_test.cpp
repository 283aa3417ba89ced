#include "study/pages/table_pages.h"

#include <gtest/gtest.h>

#include "study/methods/figure_book.h"
#include "study/model/indicators.h"
#include "study/pages/test_html.h"
#include "study/pages/test_study.h"
#include "text/spanish_number.h"

namespace study::pages {
namespace {

using Rows = std::vector<std::string>;

constexpr Unit kWhole{UnitKind::region, 0};
constexpr Unit kAlta{UnitKind::province, 0};

bool holds(const std::string& html, const std::string& text) { return html.find(text) != std::string::npos; }

TEST(TablePages, LifeLost) {
  const Study study = testStudy();
  const std::string html = lifeLostPage(YearFigures(study, 0), kBroadGroups, kMen);
  EXPECT_EQ(rowsOf(html, "Resto &amp; otras"), (Rows{"45,0 45,0 0,0 0,0", "*75,0 *225,0 *0,0 *0,0"}));
  EXPECT_EQ(rowsOf(html, "Tumores"), (Rows{"0,0 0,0 0,0 0,0", "*0,0 *0,0 *0,0 *0,0"}));
  EXPECT_EQ(rowsOf(html, "Todas las causas"), (Rows{"45,0 45,0 0,0 0,0", "*75,0 *225,0 *0,0 *0,0"}));
  EXPECT_TRUE(holds(html, "* Tasa inestable: menos de 20 defunciones antes de cumplir los 70 años."));
}

TEST(TablePages, DeathsByAge) {
  const Study study = testStudy();
  const YearFigures figures(study, 0);
  const std::string html = deathsByAgePage(figures, kAlta, kBroadGroups, kMen);
  EXPECT_EQ(rowsOf(html, "Tumores"), (Rows{"0 32 32", "*0,0 160,0 80,0"}));
  EXPECT_EQ(rowsOf(html, "Resto &amp; otras"), (Rows{"1 0 1", "*5,0 *0,0 *2,5"}));
  EXPECT_EQ(rowsOf(html, "Todas las causas"), (Rows{"1 32 33", "*5,0 160,0 82,5"}));
  EXPECT_TRUE(
      holds(html, "Defunciones y Tasas específicas por provincias, 1999, Alta, Grandes grupos, Hombres</title>"));
  const std::string region = deathsByAgePage(figures, kWhole, kReducedList, kBoth);
  EXPECT_EQ(rowsOf(region, "Tumor maligno de la próstata"), (Rows{"0 2 2", "*0,0 *1,7 *0,8"}));
  EXPECT_TRUE(holds(region, "Las causas de «Lista reducida» no suman el total"));
}

TEST(TablePages, Distribution) {
  const Study study = testStudy();
  const YearFigures figures(study, 0);
  const std::string women = distributionPage(figures, kWomen);
  EXPECT_EQ(rowsOf(women, "Tumores"), (Rows{"200 100,0 40 100,0 80 100,0 80 100,0"}));
  EXPECT_EQ(rowsOf(women, "Resto &amp; otras"), (Rows{"0 0,0 0 0,0 0 0,0 0 0,0"}));
  const std::string men = distributionPage(figures, kMen);
  EXPECT_EQ(rowsOf(men, "Tumores"), (Rows{"32 97,0 32 97,0 0 – 0 –"}));
  EXPECT_EQ(rowsOf(men, "Tumor maligno de la próstata"), (Rows{"2 6,1 2 6,1 0 – 0 –"}));
  EXPECT_EQ(rowsOf(men, "Todas las causas"), (Rows{"33 100,0 33 100,0 0 – 0 –"}));
  EXPECT_TRUE(holds(men, "– Sin defunciones no hay porcentaje."));
}

TEST(TablePages, CausesOfOneSexHaveNoRowOfTheOther) {
  const Study study = testStudy();
  const YearFigures figures(study, 0);
  for (const std::string& html :
       {lifeLostPage(figures, kReducedList, kWomen), deathsByAgePage(figures, kWhole, kReducedList, kWomen),
        distributionPage(figures, kWomen)}) {
    EXPECT_FALSE(holds(html, "próstata"));
    EXPECT_FALSE(rowsOf(html, "Todas las causas").empty());
  }
}

TEST(TablePages, ProvinceIndicators) {
  const Study study = testStudy();
  const std::string html = provinceIndicatorsPage(YearFigures(study, 0), kBoth);
  EXPECT_EQ(rowsOf(html, "Alta"), (Rows{"80.000 73 91,3 91,3 71,5 114,7 45,0 *112,5"}));
  EXPECT_EQ(rowsOf(html, "Veldoria"), (Rows{"240.000 233 97,1 97,1 85,0 110,4 45,0 *37,5"}));
  EXPECT_EQ(rowsOf(html, "Ñora &quot;del&quot; Río").size(), 1U);
  EXPECT_TRUE(holds(html, "población estándar: población de prueba"));
}

TEST(TablePages, ZoneIndicators) {
  const Study study = testStudy();
  const std::string html = zoneIndicatorsPage(YearFigures(study, 0), kMen);
  EXPECT_EQ(rowsOf(html, "Alta &lt;Norte&gt;"), (Rows{"20.000 33 165,0 165,0 113,6 231,7 45,0 *450,0"}));
  EXPECT_EQ(rowsOf(html, "Zéjel"), (Rows{"20.000 0 *0,0 *0,0 0,0 18,3 0,0 *0,0"}));
  EXPECT_LT(html.find(">Alta<"), html.find(">Alta Sur<"));
  EXPECT_LT(html.find(">Alta Sur<"), html.find(">Ñora &quot;del&quot; Río<"));
  EXPECT_LT(html.find(">Umbría<"), html.find(">Zéjel<"));
}

TEST(TablePages, ShowTheFiguresOfTheMaps) {
  const Study study = testStudy();
  const FigureBook book(study);
  for (const SexChoice& sex : kSexChoices) {
    const std::string html = provinceIndicatorsPage(YearFigures(study, 0), sex);
    const auto value = [&](std::string_view indicator) { return book.find(0, kAlta, sex.name, indicator)->value; };
    const std::string row = rowsOf(html, "Alta").front();
    EXPECT_TRUE(row.starts_with(text::spanishNumber(value(kPopulationIndicator), 0) + " " +
                                text::spanishNumber(value(kDeathsIndicator), 0) + " " +
                                text::spanishNumber(value(kCrudeRateIndicator), 1) + " " +
                                text::spanishNumber(value(kStandardisedRateIndicator), 1) + " "))
        << row;
  }
}

TEST(TablePages, WithoutPersonsThereIsNoRate) {
  Study study = testStudy();
  Counts empty(2, 3);
  empty.addPersons(Sex::women, 1, 100);
  study.counts[0][5] = empty;
  const YearFigures figures(study, 0);
  const std::string men = zoneIndicatorsPage(figures, kMen);
  EXPECT_EQ(rowsOf(men, "Zéjel"), (Rows{"0 0 – – – – 0,0 –"}));
  EXPECT_TRUE(holds(men, "– No hay población de la que calcular la tasa."));
  EXPECT_FALSE(holds(provinceIndicatorsPage(figures, kMen), "– No hay"));
}

// Deaths at 50 and more by sex, zone and code. The men of the first zone have two deaths, all else is well above.
Study withFewDeaths() {
  Study study = testStudy();
  study.suppressBelow = 5;
  for (std::size_t zone = 0; zone < study.zones.size(); ++zone) {
    Counts counts(2, 3);
    const long more = 10 * static_cast<long>(zone);
    for (const Sex sex : kBothSexes) counts.addPersons(sex, 0, 10'000);
    for (const Sex sex : kBothSexes) counts.addPersons(sex, 1, 10'000);
    if (zone != 0) counts.addDeaths(0, Sex::men, 1, 50 + more);
    counts.addDeaths(2, Sex::men, 1, zone == 0 ? 2 : zone == 1 ? 0 : more);
    counts.addDeaths(0, Sex::women, 1, 51 + more);
    counts.addDeaths(2, Sex::women, 1, 21 + more);
    study.counts[0][zone] = counts;
  }
  return study;
}

TEST(TablePages, HideSmallCountsAndWhatGivesThemAway) {
  const Study study = withFewDeaths();
  const YearFigures figures(study, 0);
  const std::string men = distributionPage(figures, kMen);
  // The 2 of Alta and the 50 of Ñora's rest; their columns' tumours, lest they be subtracted from all causes.
  EXPECT_EQ(rowsOf(men, "Resto &amp; otras"), (Rows{"142 26,2 (s) (s) (s) (s) 90 32,1"}));
  EXPECT_EQ(rowsOf(men, "Tumores"), (Rows{"400 73,8 (s) (s) (s) (s) 190 67,9"}));
  EXPECT_TRUE(holds(men, "(s) Cifra que no se publica para proteger a las personas: corresponde a menos de 5 "));
  // The other sex's, lest they be subtracted from both sexes.
  EXPECT_EQ(rowsOf(distributionPage(figures, kWomen), "Resto &amp; otras"),
            (Rows{"276 37,7 (s) (s) (s) (s) 132 40,7"}));
  EXPECT_EQ(rowsOf(deathsByAgePage(figures, kAlta, kBroadGroups, kMen), "Tumores"),
            (Rows{"0 (s) (s)", "*0,0 (s) (s)"}));
}

TEST(TablePages, HideZonesWithFewDeaths) {
  const Study study = withFewDeaths();
  const YearFigures figures(study, 0);
  const std::string men = zoneIndicatorsPage(figures, kMen);
  EXPECT_EQ(rowsOf(men, "Alta &lt;Norte&gt;"), (Rows{"20.000 (s) (s) (s) (s) (s) 0,0 *0,0"}));
  EXPECT_EQ(rowsOf(men, "Alta Sur"), (Rows{"20.000 (s) (s) (s) (s) (s) 0,0 *0,0"}));
  EXPECT_FALSE(holds(rowsOf(men, "Umbría").front(), "(s)"));
  EXPECT_FALSE(holds(provinceIndicatorsPage(figures, kMen), "(s)"));
}

// What the maps hide the pages hide, and the other way round.
TEST(TablePages, HideWhatTheMapsHide) {
  const Study study = withFewDeaths();
  const YearFigures figures(study, 0);
  const FigureBook book(study);
  std::size_t hidden = 0;
  for (const SexChoice& sex : kSexChoices) {
    const std::string zones = zoneIndicatorsPage(figures, sex);
    for (const Unit zone : study.units(UnitKind::zone)) {
      const std::string name = study.name(zone) == "Alta <Norte>" ? "Alta &lt;Norte&gt;" : study.name(zone);
      const bool isHidden = holds(rowsOf(zones, name).front(), " (s) (s) (s) (s) (s) ");
      EXPECT_EQ(isHidden, book.isSuppressed(0, zone, sex.name, kDeathsIndicator)) << name << sex.name;
      hidden += isHidden ? 1U : 0U;
    }
    for (const Unit province : study.units(UnitKind::province)) {
      const CauseRow tumours{study.causes.published.data(), 1};
      EXPECT_EQ(figures.areDeathsHidden(province, sex, tumours, study.ages.size()),
                book.isSuppressed(0, province, sex.name, std::string(kCausePrefix) + "Tumores"));
    }
  }
  EXPECT_GT(hidden, 0U);
}

TEST(TablePages, SplitManyProvincesIntoBlocks) {
  Study study = testStudy();
  for (int i = 1; i <= 9; ++i) study.provinces.push_back("Zz " + std::to_string(i));
  const std::string html = lifeLostPage(YearFigures(study, 0), kBroadGroups, kMen);
  EXPECT_TRUE(holds(html, "<caption>Años de vida potencialmente perdidos (AVPP) (1 de 2)</caption>"));
  EXPECT_TRUE(holds(html, "<caption>Años de vida potencialmente perdidos (AVPP) (2 de 2)</caption>"));
  EXPECT_EQ(rowsOf(html, "Resto &amp; otras").at(1), "0,0 0,0 0,0");
}

TEST(TablePages, AreWellFormedAndQuiet) {
  const Study study = withFewDeaths();
  const YearFigures figures(study, 0);
  for (const std::string& html :
       {lifeLostPage(figures, kBroadGroups, kBoth), deathsByAgePage(figures, kWhole, kReducedList, kMen),
        distributionPage(figures, kWomen), provinceIndicatorsPage(figures, kBoth), zoneIndicatorsPage(figures, kMen)}) {
    EXPECT_EQ(faultOf(html), "");
    EXPECT_TRUE(holds(html, "<meta charset=\"utf-8\">"));
    EXPECT_TRUE(holds(html, "@media print"));
    EXPECT_TRUE(holds(html, "Fuente: Mortalidad en Veldoria 1999"));
    for (const char* no : {"<script", "javascript:", "<link", "http://", "https://", "src="}) {
      EXPECT_FALSE(holds(html, no)) << no;
    }
  }
}

}  // namespace
}  // namespace study::pages
