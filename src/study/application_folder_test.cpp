#include "study/application_folder.h"

#include <gtest/gtest.h>
#include <ogrsf_frmts.h>

#include <cmath>
#include <set>
#include <sstream>

#include "study/command_line.h"
#include "study/figures.h"
#include "study/sample/sample_study.h"
#include "study/test_folder.h"

namespace study {
namespace {

namespace fs = std::filesystem;

int runStudy(const std::vector<std::string>& arguments, std::string& out, std::string& err) {
  std::ostringstream outText;
  std::ostringstream errText;
  const int code = run(arguments, outText, errText);
  out = outText.str();
  err = errText.str();
  return code;
}

// The shipped sample, written once for all tests below.
class ApplicationFolder : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = fs::path(testing::TempDir()) / ("study_sample_" + std::to_string(getpid()));
    std::string out;
    std::string err;
    ASSERT_EQ(runStudy({"sample", folder_.string()}, out, err), 0) << err;
    RegisterOGRTAB();
  }
  static void TearDownTestSuite() { fs::remove_all(folder_); }

  static GDALDatasetUniquePtr open(const std::string& table) {
    return GDALDatasetUniquePtr(
        GDALDataset::Open((folder_ / "Tablas" / table).c_str(), GDAL_OF_VECTOR, nullptr, nullptr, nullptr));
  }
  static std::vector<std::string> columnsOf(OGRLayer& layer) {
    std::vector<std::string> names;
    OGRFeatureDefn& definition = *layer.GetLayerDefn();
    for (int i = 0; i < definition.GetFieldCount(); ++i) names.emplace_back(definition.GetFieldDefn(i)->GetNameRef());
    return names;
  }

  inline static fs::path folder_;
};

TEST_F(ApplicationFolder, HoldsItsFiles) {
  std::set<std::string> expected{"Estudio.txt"};
  const auto addTable = [&](const std::string& table) {
    for (const char* ending : {".TAB", ".DAT", ".MAP", ".ID"}) expected.insert("Tablas/" + table + ending);
  };
  for (const std::string year : {"1999", "2000", "2001", "2002"}) {
    for (const char* base : {"/Provincias", "/ZonasBasicas", "/Veldoria"}) addTable(year + base + year);
    expected.insert("Tablas/" + year + "/Año" + year + ".wor");
  }
  addTable("Estadisticas/Estadisticas");
  expected.insert("Tablas/Estadisticas/Estadisticas.wor");
  std::set<std::string> found;
  for (const auto& [name, bytes] : filesBelow(folder_)) found.insert(name);
  EXPECT_EQ(found, expected);
}

TEST_F(ApplicationFolder, SameSeedSameBytes) {
  const TestFolder again;
  writeApplicationFolder(makeSampleStudy(kSampleSeed), again.path(), [](const std::string&) {});
  const auto first = filesBelow(folder_);
  const auto second = filesBelow(again.path());
  ASSERT_EQ(first.size(), second.size());
  for (const auto& [name, bytes] : first) EXPECT_TRUE(second.at(name) == bytes) << name;
}

TEST_F(ApplicationFolder, YearTablesSayWhatWasCounted) {
  const Study study = makeSampleStudy(kSampleSeed);
  for (int year = kFirstYear; year < kFirstYear + kYears; ++year) {
    const std::string name = std::to_string(year) + "/ZonasBasicas" + std::to_string(year) + ".TAB";
    const GDALDatasetUniquePtr dataset = open(name);
    ASSERT_TRUE(dataset) << name;
    OGRLayer& layer = *dataset->GetLayer(0);
    EXPECT_EQ(columnsOf(layer),
              (std::vector<std::string>{"Año", "Nombre", "Provincia", "Sexo", "Tipo", "Indicador", "Valor"}));
    for (std::size_t zone = 0; zone < study.zones.size(); ++zone) {
      for (const Figure& figure : figures(study.zoneCounts(year, zone))) {
        const OGRFeatureUniquePtr row(layer.GetNextFeature());
        ASSERT_TRUE(row);
        EXPECT_EQ(row->GetFieldAsInteger(0), year);
        EXPECT_EQ(row->GetFieldAsString(1), study.zones[zone].name);
        EXPECT_EQ(row->GetFieldAsString(2), study.provinces[static_cast<std::size_t>(study.zones[zone].province)]);
        EXPECT_EQ(row->GetFieldAsString(3), figure.sex);
        EXPECT_EQ(row->GetFieldAsString(4), figure.type);
        EXPECT_EQ(row->GetFieldAsString(5), figure.indicator);
        EXPECT_TRUE(row->IsFieldSetAndNotNull(6));
        EXPECT_EQ(row->GetFieldAsDouble(6), figure.value);
        ASSERT_TRUE(row->GetGeometryRef());
      }
    }
    EXPECT_EQ(OGRFeatureUniquePtr(layer.GetNextFeature()), nullptr);
  }
}

TEST_F(ApplicationFolder, ObjectsKeepTheirVerticesExactly) {
  const Study study = makeSampleStudy(kSampleSeed);
  const GDALDatasetUniquePtr dataset = open("1999/Provincias1999.TAB");
  ASSERT_TRUE(dataset);
  const OGRFeatureUniquePtr row(dataset->GetLayer(0)->GetNextFeature());
  EXPECT_STREQ(row->GetFieldAsString("Nombre"), study.provinces[0].c_str());
  std::set<std::pair<long long, long long>> written;
  const Ring outline = study.provinceOutline(0).front();
  for (const Point& p : outline) {
    written.emplace(std::llround(p.x * 100), std::llround(p.y * 100));
  }
  const OGRLinearRing* ring = row->GetGeometryRef()->toPolygon()->getExteriorRing();
  ASSERT_EQ(static_cast<std::size_t>(ring->getNumPoints()), written.size() + 1);
  for (int i = 0; i < ring->getNumPoints(); ++i) {
    const double x = ring->getX(i) * 100;
    const double y = ring->getY(i) * 100;
    EXPECT_NEAR(x, std::round(x), 1e-4);
    EXPECT_EQ(written.count({std::llround(x), std::llround(y)}), 1u);
  }
}

TEST_F(ApplicationFolder, StatisticsTableHasOneUnitAtEveryPoint) {
  const Study study = makeSampleStudy(kSampleSeed);
  const GDALDatasetUniquePtr dataset = open("Estadisticas/Estadisticas.TAB");
  ASSERT_TRUE(dataset);
  OGRLayer& layer = *dataset->GetLayer(0);
  EXPECT_EQ(columnsOf(layer), (std::vector<std::string>{"Nombre", "Tipo", "Indicador", "Valor"}));
  std::map<std::string, std::unique_ptr<OGRGeometry>> units;
  std::map<std::string, int> rows;
  while (const OGRFeatureUniquePtr row{layer.GetNextFeature()}) {
    EXPECT_TRUE(row->IsFieldSetAndNotNull(3));
    units[row->GetFieldAsString(0)].reset(row->GetGeometryRef()->clone());
    ++rows[row->GetFieldAsString(0)];
  }
  ASSERT_EQ(units.size(), 9u);
  for (const auto& [name, count] : rows) EXPECT_GE(count, 15) << name;
  for (std::size_t zone = 0; zone < study.zones.size(); ++zone) {
    // A zone's own corner would lie on a border: the middle of its first three is inside or outside, never on one.
    const Ring ring = study.zoneOutline(zone).front();
    OGRPoint point((ring[0].x + ring[1].x + ring[2].x) / 3, (ring[0].y + ring[1].y + ring[2].y) / 3);
    int found = 0;
    for (const auto& [name, object] : units) found += object->Contains(&point) ? 1 : 0;
    EXPECT_EQ(found, 1) << study.zones[zone].name;
  }
}

TEST(CommandLine, WithoutArgumentsPrintsItsUsage) {
  std::string out;
  std::string err;
  EXPECT_EQ(runStudy({}, out, err), 0);
  EXPECT_NE(out.find("usage: study sample OUTPUT"), std::string::npos);
  EXPECT_EQ(err, "");
}

TEST(CommandLine, FaultsGoToTheErrorStream) {
  const TestFolder test;
  writeBytes(test.path() / "letter.txt", "dear");
  const std::string folder = test.path().string();
  for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
           {"sample"}, {"paint", folder}, {"sample", folder, "more"}, {"sample", ""}, {"sample", folder}}) {
    std::string out;
    std::string err;
    EXPECT_EQ(runStudy(arguments, out, err), 1);
    EXPECT_NE(err, "");
    EXPECT_EQ(out, "");
  }
  EXPECT_EQ(filesBelow(test.path()).size(), 1u);
}

}  // namespace
}  // namespace study
