#include "study/input/read_input.h"

#include <gdal_priv.h>
#include <gdal_utils.h>

#include <algorithm>
#include <cmath>

#include "study/geometry/polygon.h"
#include "study/input/testing_input.h"

namespace study {
namespace {

std::vector<std::string> names(const std::vector<Zone>& zones) {
  std::vector<std::string> result;
  for (const Zone& zone : zones) result.push_back(zone.name);
  return result;
}

TEST(ReadInput, OrdersProvincesAndZones) {
  const Study study = TestInput().read();
  EXPECT_EQ(study.provinces, (std::vector<std::string>{"Álamos", "Ribera", "Zarzal"}));
  EXPECT_EQ(names(study.zones), (std::vector<std::string>{"Olmo", "Pinar", "Nava", "Ñora", "Quejo", "Rubio"}));
  for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(study.zones[i].province, i / 2);
}

TEST(ReadInput, TakesTheSettings) {
  const Study study = TestInput().read();
  EXPECT_EQ(study.years, (std::vector<int>{1999, 2001}));
  EXPECT_EQ(study.suppressBelow, 3);
  EXPECT_EQ(study.utmZone, 30);
  EXPECT_EQ(study.texts.source, "Registro de mortalidad");
  EXPECT_EQ(study.texts.presentation.title, "Presentación");
  EXPECT_EQ(study.texts.presentation.text, "Primera línea.\n\nSegunda \"línea\".");
  EXPECT_EQ(study.texts.credits.title, "Créditos");
  EXPECT_EQ(study.texts.credits.text, "");
}

TEST(ReadInput, TakesAgesAndStandard) {
  const Study study = TestInput().read();
  ASSERT_EQ(study.ages.size(), 4U);
  EXPECT_EQ(study.ages[1].from, 1);
  EXPECT_EQ(study.ages[1].to, 15);
  EXPECT_FALSE(study.ages[3].to);
  EXPECT_EQ(study.standard.weights, (std::vector<double>{1.5, 20, 60, 18.5}));
}

TEST(ReadInput, TakesTheCauses) {
  const CauseList causes = TestInput().read().causes;
  ASSERT_EQ(causes.codes.size(), 16U);
  EXPECT_EQ(causes.codes.front(), "colon");
  EXPECT_EQ(causes.codes.back(), "trafico");
  ASSERT_EQ(causes.published.size(), 20U);
  const PublishedCause& circulatory = causes.published[1];
  EXPECT_EQ(circulatory.code, "II");
  EXPECT_EQ(circulatory.list, kBroadGroups);
  EXPECT_EQ(circulatory.name, "Enfermedades del sistema circulatorio");
  EXPECT_EQ(circulatory.sums, (std::vector<std::size_t>{6, 7, 8}));
  EXPECT_TRUE(circulatory.men && circulatory.women);
  const PublishedCause& prostate = causes.published[17];
  EXPECT_EQ(prostate.name, "Tumor maligno de la próstata");
  EXPECT_TRUE(prostate.men);
  EXPECT_FALSE(prostate.women);
  EXPECT_EQ(causes.published[18].name, "Tumor maligno de la tráquea, de los bronquios y del pulmón");
}

TEST(ReadInput, TakesBroadGroupsFirst) {
  TestInput input;
  input.replace("causes.csv", "I,Tumores,Grandes grupos,colon estomago mama prostata pulmon otrostumores,\n", "");
  input.files["causes.csv"] += "I,Tumores,Grandes grupos,colon estomago mama prostata pulmon otrostumores,\n";
  const CauseList causes = input.read().causes;
  EXPECT_EQ(causes.published[3].name, "Tumores");
  EXPECT_EQ(causes.published[3].list, kBroadGroups);
}

TEST(ReadInput, EntersAllPersons) {
  const Study study = TestInput().read();
  ASSERT_EQ(study.counts.size(), 2U);
  for (std::size_t year = 0; year < 2; ++year) {
    ASSERT_EQ(study.counts[year].size(), 6U);
    for (std::size_t i = 0; i < 6; ++i) {
      const auto given = std::find(kTestZones.begin(), kTestZones.end(), study.zones[i].name) - kTestZones.begin();
      for (std::size_t age = 0; age < 4; ++age) {
        for (const Sex sex : kBothSexes) {
          EXPECT_EQ(study.counts[year][i].persons(sex, age),
                    testPersons(year, static_cast<std::size_t>(given), static_cast<std::size_t>(sex), age));
        }
      }
    }
  }
}

TEST(ReadInput, EntersAllDeaths) {
  const Study study = TestInput().read();
  const auto code = [&](const char* name) {
    return static_cast<std::size_t>(std::find(study.causes.codes.begin(), study.causes.codes.end(), name) -
                                    study.causes.codes.begin());
  };
  EXPECT_EQ(study.counts[0][2].deaths(code("prostata"), Sex::men, 3), 3);
  EXPECT_EQ(study.counts[0][2].deaths(code("mama"), Sex::women, 3), 2);
  EXPECT_EQ(study.counts[1][3].deaths(code("trafico"), Sex::men, 2), 1);
  EXPECT_EQ(study.counts[0][0].deaths(code("otrostumores"), Sex::women, 0), 1);
  EXPECT_EQ(study.counts[1][5].deaths(code("infarto"), Sex::men, 3), 7);
  long all = 0;
  for (const auto& ofYear : study.counts) {
    for (const Counts& counts : ofYear) all += total(counts.deaths(kSexChoices[0]));
  }
  EXPECT_EQ(all, 14);
}

TEST(ReadInput, DrawsTheMapInMetres) {
  const Study study = TestInput().read();
  ASSERT_EQ(study.zoneAreas.size(), 6U);
  ASSERT_EQ(study.provinceAreas.size(), 3U);
  // A tenth of a degree of longitude at 40.025 N is 8,531 m, a twentieth of latitude 5,552 m.
  EXPECT_NEAR(squareMetres(study.zoneAreas[0]), 8531.0 * 5552.0, 1e5);
  EXPECT_NEAR(squareMetres(study.regionArea),
              squareMetres(study.provinceAreas[0]) + squareMetres(study.provinceAreas[1]) +
                  squareMetres(study.provinceAreas[2]),
              1e-3);
  // West of its zone's meridian at 3 W, which has the easting 500,000.
  const Extent box = extent(study.regionArea);
  EXPECT_EQ(box.maxX, 500000);
  EXPECT_NEAR(box.minX, 500000 - 3 * 8535.0, 30);
  for (const Ring& ring : study.regionArea) {
    for (const Point& p : ring) EXPECT_EQ(p, onGrid(p));
  }
}

TEST(ReadInput, FindsTheUtmZoneFromTheMiddle) {
  TestInput input;
  input.replace("study.toml", "utm_zone = 30\n", "");
  EXPECT_EQ(input.read().utmZone, 30);
  input.replace("study.toml", "years", "utm_zone = -31\nyears");
  EXPECT_EQ(input.read().utmZone, -31);
}

TEST(ReadInput, TakesPublishedStandards) {
  TestInput input;
  input.files.erase("standard.csv");
  input.replace("study.toml", "standard = \"standard.csv\"\n", "");
  EXPECT_EQ(input.read().standard.weights, (std::vector<double>{1600, 20400, 67000, 11000}));
  input.replace("study.toml", "years", "standard = \"europea 2013\"\nyears");
  EXPECT_EQ(input.read().standard.weights, (std::vector<double>{1000, 15000, 64500, 19500}));
}

TEST(ReadInput, TakesFilesAsSpreadsheetsSaveThem) {
  TestInput input;
  std::string& deaths = input.files["deaths.csv"];
  std::replace(deaths.begin(), deaths.end(), ',', ';');
  for (std::size_t at = 0; (at = deaths.find('\n', at)) != std::string::npos; at += 2) deaths.replace(at, 1, "\r\n");
  input.replace("deaths.csv", "1999;Nava", "\r\n 1999 ;\"Nava\"");
  deaths.insert(0, "\xEF\xBB\xBF");
  input.replace("deaths.csv", "year;zone", "YEAR;Zone");
  input.replace("population.csv", "Ñora", "N\xCC\x83ora");
  EXPECT_EQ(input.faults(), std::vector<std::string>{});
}

TEST(ReadInput, TellsItsSteps) {
  TestInput input;
  input.write();
  std::vector<std::string> steps;
  (void)readInput(input.folder(), [&](const std::string& step) { steps.push_back(step); });
  EXPECT_EQ(steps, (std::vector<std::string>{"Reading the settings, the causes and the standard population",
                                             "Reading the zones", "Joining 6 zones around 40.05 N 3.15 W to provinces",
                                             "Reading the population", "Reading the deaths"}));
}

// Saves the zones as another format in another coordinate system.
void saveZones(const TestInput& input, const std::string& name, std::vector<std::string> options) {
  GDALAllRegister();
  input.write();
  std::vector<char*> arguments;
  for (std::string& option : options) arguments.push_back(option.data());
  arguments.push_back(nullptr);
  GDALVectorTranslateOptions* translate = GDALVectorTranslateOptionsNew(arguments.data(), nullptr);
  GDALDatasetH source =
      GDALOpenEx((input.folder() / "zones.geojson").c_str(), GDAL_OF_VECTOR, nullptr, nullptr, nullptr);
  GDALDatasetH saved = GDALVectorTranslate((input.folder() / name).c_str(), nullptr, 1, &source, translate, nullptr);
  ASSERT_NE(saved, nullptr) << name;
  GDALClose(saved);
  GDALClose(source);
  GDALVectorTranslateOptionsFree(translate);
}

TEST(ReadInput, ReadsTheZonesOfAllFormats) {
  const Area expected = TestInput().read().regionArea;
  const std::vector<std::pair<std::string, std::vector<std::string>>> formats{
      {"zones.gpkg", {"-f", "GPKG", "-t_srs", "EPSG:25830"}},
      {"ZONES.GPKG", {"-f", "GPKG", "-t_srs", "EPSG:3857", "-nlt", "CURVEPOLYGON"}},
      {"zones.shp", {"-f", "ESRI Shapefile", "-t_srs", "EPSG:4258", "-lco", "ENCODING=UTF-8"}},
      {"zones.tab", {"-f", "MapInfo File", "-t_srs", "EPSG:32630", "-lco", "ENCODING=CP1252"}},
  };
  for (const auto& [name, options] : formats) {
    TestInput input;
    saveZones(input, name, options);
    std::filesystem::remove(input.folder() / "zones.geojson");
    input.files.erase("zones.geojson");
    ASSERT_EQ(input.faults(), std::vector<std::string>{}) << name;
    const Study study = input.read();
    EXPECT_EQ(names(study.zones), (std::vector<std::string>{"Olmo", "Pinar", "Nava", "Ñora", "Quejo", "Rubio"}));
    const Extent box = extent(study.regionArea);
    EXPECT_NEAR(box.minX, extent(expected).minX, 0.5) << name;
    EXPECT_NEAR(box.maxY, extent(expected).maxY, 0.5) << name;
    EXPECT_NEAR(squareMetres(study.regionArea), squareMetres(expected), 2e4) << name;
  }
}

}  // namespace
}  // namespace study
