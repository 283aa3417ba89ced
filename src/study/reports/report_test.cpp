#include "study/reports/report.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <thread>

#include "study/model/indicators.h"
#include "study/model/study_error.h"
#include "study/reports/report_data.h"
#include "study/reports/report_pages.h"
#include "study/reports/sections.h"
#include "study/reports/test_pages.h"
#include "study/reports/test_study.h"

namespace study::reports {
namespace {

std::vector<Page> pagesOf(const Study& study, std::size_t year = 0) {
  const FigureBook book(study);
  return reportPages(study, book, year);
}

// Nothing in the margins but the running head and the page number, no letters on letters.
void expectInOrder(const std::vector<Page>& pages) {
  ASSERT_GE(pages.size(), 8U);
  expectWithin(pages.front(), {0, 0, kPageWidth, kPageHeight});
  for (const TextMark* text : textsOf(pages.front())) {
    EXPECT_TRUE(isWithin(markExtent(*text), {kLeft, 0, kContentWidth, kPageHeight - 30})) << text->text;
  }
  for (std::size_t i = 1; i < pages.size(); ++i) {
    SCOPED_TRACE("page " + std::to_string(i + 1));
    expectWithin(pages[i], {kLeft, kTop - 40, kContentWidth, kBottom - kTop + 70});
    EXPECT_TRUE(hasText(pages[i], std::to_string(i + 1) + " / " + std::to_string(pages.size())));
  }
  for (const Page& page : pages) expectLegible(page);
}

std::string contentsOf(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

TEST(Report, HasAllSections) {
  const Study study = testStudy();
  const std::vector<Page> pages = pagesOf(study, 1);
  expectInOrder(pages);
  EXPECT_LE(pages.size(), 16U);
  EXPECT_TRUE(hasText(pages[0], "Mortalidad en Veldoria"));
  EXPECT_TRUE(hasText(pages[0], "2000"));
  EXPECT_TRUE(hasText(pages[0], "3 provincias · 12 zonas básicas de salud"));
  for (const char* text :
       {"Resumen", "Población", "Mortalidad por sexo y edad", "Causas de muerte", "Mortalidad por provincias", "Mapas",
        "Años de vida potencialmente perdidos", "Zonas básicas de salud", "Métodos"}) {
    EXPECT_TRUE(hasText(pages[1], text)) << text;
    EXPECT_TRUE(hasText({pages.begin() + 2, pages.end()}, text)) << text;
  }
  for (const char* text :
       {"Zona 12", "Provincia 3", "Mapa 2. Tasa estandarizada de mortalidad por 100.000 habitantes, por provincias.",
        "Mapa 3. Tasa estandarizada de mortalidad por 100.000 habitantes, por zonas básicas de salud.",
        "Tumor maligno de la próstata", "Población estándar: población de prueba"}) {
    EXPECT_TRUE(hasText(pages, text)) << text;
  }
  EXPECT_FALSE(hasText(pages, "fictici")) << "only a study says so of itself";
}

// The report's cells and its maps hide what the study's maps hide, and one number more would give another away.
TEST(Report, HidesWhatTheMapsHide) {
  Study study = testStudy({.persons = 12});
  study.suppressBelow = 15;
  const FigureBook book(study);
  const ReportData data(study, book, 0);
  std::size_t hidden = 0;
  for (const UnitKind kind : {UnitKind::region, UnitKind::province, UnitKind::zone}) {
    for (const Unit unit : study.units(kind)) {
      for (const SexChoice& sex : kSexChoices) {
        const bool isHidden = book.isSuppressed(0, unit, sex.name, kStandardisedRateIndicator);
        EXPECT_EQ(!data.deaths({unit, sex}), isHidden) << study.name(unit) << sex.name;
        EXPECT_EQ(!data.standardised({unit, sex}), isHidden) << study.name(unit) << sex.name;
        hidden += isHidden ? 1U : 0U;
      }
    }
  }
  EXPECT_GT(hidden, 0U);
  const std::vector<Page> pages = reportPages(study, book, 0);
  expectInOrder(pages);
  EXPECT_TRUE(hasText(pages, "sin datos"));
  EXPECT_TRUE(hasText(pages, "(s) Cifra que no se publica"));
}

TEST(Report, TakesTheStudysOwnTexts) {
  Study study = testStudy();
  study.texts.presentation = {"Un estudio de prueba", "Una región ficticia.\n\nOtro párrafo."};
  study.texts.methodology = {"Cómo se hizo", "Con cuidado."};
  study.texts.source = "Registro de prueba";
  const std::vector<Page> pages = pagesOf(study);
  expectInOrder(pages);
  EXPECT_TRUE(hasText(pages[0], "Un estudio de prueba"));
  EXPECT_TRUE(hasText(pages[0], "Fuente: Registro de prueba"));
  for (const char* text : {"Una región ficticia.", "Otro párrafo.", "Del estudio: Cómo se hizo", "Con cuidado."}) {
    EXPECT_TRUE(hasText(pages, text)) << text;
  }
}

TEST(Report, SaysTheFiguresOfTheStudy) {
  const Study study = testStudy({.provinces = 1, .zonesPerProvince = 1, .persons = 1'000});
  const FigureBook book(study);
  const ReportData data(study, book, 0);
  const std::vector<Page> pages = pagesOf(study);
  EXPECT_TRUE(hasText(pages[2], "38.000")) << "1,000 persons of 2 sexes and 19 ages";
  EXPECT_TRUE(
      hasText(pages[2], "En 1999 se registraron 3.800 defunciones en Veldoria: 1.900 de hombres y 1.900 de mujeres."));
}

TEST(Report, CopesWithOtherShapes) {
  const std::string longName = " de las muy largas denominaciones que nadie abrevia nunca";
  for (const StudyShape& shape : {StudyShape{.provinces = 1, .zonesPerProvince = 1, .years = 1},
                                  {.persons = 3, .deathsIn = 2},
                                  {.persons = 0},
                                  {.deathsIn = 0},
                                  {.hasCauses = false},
                                  {.longName = longName},
                                  {.longName = std::string(80, 'W')},
                                  {.provinces = 50, .zonesPerProvince = 3},
                                  {.provinces = 20, .zonesPerProvince = 15}}) {
    SCOPED_TRACE(std::to_string(shape.provinces) + " provinces, " + std::to_string(shape.persons) +
                 " persons, 1 death in " + std::to_string(shape.deathsIn) + shape.longName);
    expectInOrder(pagesOf(testStudy(shape)));
  }
}

TEST(Report, SaysThatThereAreNoDeathsOrCauses) {
  EXPECT_TRUE(hasText(pagesOf(testStudy({.deathsIn = 0})), "En 1999 no se registraron defunciones en Veldoria."));
  EXPECT_TRUE(hasText(pagesOf(testStudy({.hasCauses = false})), "El estudio no publica causas de muerte."));
}

TEST(Report, ListsTheExtremesOfManyZones) {
  const StudyShape shape{.provinces = 7, .zonesPerProvince = 30};
  ASSERT_GT(shape.provinces * shape.zonesPerProvince, kMostZones);
  const std::vector<Page> pages = pagesOf(testStudy(shape));
  expectInOrder(pages);
  EXPECT_TRUE(hasText(pages, "Zonas básicas con las tasas estandarizadas más altas"));
  EXPECT_TRUE(hasText(pages, "Zona 5 (Provincia 1)")) << "of those with the highest";
  EXPECT_TRUE(hasText(pages, "Zona 1 (Provincia 1)")) << "of those with the lowest";
  EXPECT_FALSE(hasText(pages, "Zona 3 (Provincia 1)"));
}

TEST(Report, HidesSmallNumbers) {
  Study study = testStudy({.persons = 40, .deathsIn = 400});
  EXPECT_FALSE(hasText(pagesOf(study), "(s)"));
  study.suppressBelow = 5;
  const std::vector<Page> pages = pagesOf(study);
  expectInOrder(pages);
  EXPECT_TRUE(hasText(pages, "(s) Cifra que no se publica"));
  const FigureBook book(study);
  const ReportData data(study, book, 0);
  const Subject youngMen{kWholeRegion, kMenOnly};
  for (std::size_t age = 0; age < study.ages.size(); ++age) {
    const long deaths = study.countsOf(0, kWholeRegion).deaths(kMenOnly)[age];
    if (!isSuppressed(deaths, study.suppressBelow)) continue;
    EXPECT_EQ(data.deathsAt(youngMen, age), std::nullopt) << age;
    EXPECT_EQ(data.rateAt(youngMen, age), std::nullopt) << age;
  }
}

// A zone that would give its neighbour away is hidden too, as in the pages.
TEST(Report, HidesWhatGivesSmallNumbersAway) {
  Study study = testStudy({.provinces = 1, .zonesPerProvince = 3, .deathsIn = 0});
  for (const auto& [zone, deaths] : {std::pair<std::size_t, long>{0, 3}, {1, 50}, {2, 60}}) {
    study.counts[0][zone].addDeaths(2, Sex::men, 10, deaths);
  }
  study.suppressBelow = 5;
  const FigureBook book(study);
  const ReportData data(study, book, 0);
  EXPECT_EQ(data.deaths({{UnitKind::zone, 0}}), std::nullopt);
  EXPECT_EQ(data.deaths({{UnitKind::zone, 1}}), std::nullopt);
  EXPECT_EQ(data.deaths({{UnitKind::zone, 2}}), 60);
  EXPECT_FALSE(data.standardised({{UnitKind::zone, 1}}).has_value());
  EXPECT_EQ(data.limitsCell({{UnitKind::zone, 1}}).mark, pages::Mark::hidden);
  EXPECT_EQ(data.lifeLostCell({{UnitKind::zone, 1}}).mark, pages::Mark::hidden);
  EXPECT_EQ(data.deaths({}), 113);
}

TEST(Report, GivesTheSameBytesLater) {
  const Study study = testStudy();
  const FigureBook book(study);
  const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) / "veldoria_report_test";
  std::filesystem::create_directories(folder);
  writeReport(study, book, 0, folder / "one.pdf");
  std::this_thread::sleep_for(std::chrono::milliseconds(1'100));  // dates count seconds
  writeReport(study, book, 0, folder / "two.pdf");
  writeReport(study, book, 1, folder / "next.pdf");
  const std::string first = contentsOf(folder / "one.pdf");
  EXPECT_TRUE(first.starts_with("%PDF-"));
  EXPECT_EQ(first, contentsOf(folder / "two.pdf"));
  EXPECT_NE(first, contentsOf(folder / "next.pdf"));
  EXPECT_LT(first.size(), 1'000'000U);
  std::filesystem::remove_all(folder);
}

TEST(Report, FailsWhereItCannotBeWritten) {
  const Study study = testStudy();
  EXPECT_THROW(writeReport(study, FigureBook(study), 0, "/no such folder/report.pdf"), StudyError);
}

}  // namespace
}  // namespace study::reports
