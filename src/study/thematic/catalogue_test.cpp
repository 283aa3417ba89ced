#include "study/thematic/catalogue.h"

#include <gtest/gtest.h>
#include <ogrsf_frmts.h>

#include "study/output/test_folder.h"
#include "study/thematic/testing_study.h"
#include "study/thematic/thematic_map.h"

namespace study {
namespace {

namespace fs = std::filesystem;

using Rows = std::vector<std::string>;

// The rows of a table, fields joined.
Rows rowsOf(const fs::path& table) {
  RegisterOGRTAB();
  const GDALDatasetUniquePtr dataset(
      GDALDataset::Open((table.string() + ".TAB").c_str(), GDAL_OF_VECTOR, nullptr, nullptr, nullptr));
  EXPECT_TRUE(dataset) << table;
  Rows rows;
  if (!dataset) return rows;
  for (const OGRFeatureUniquePtr& feature : dataset->GetLayer(0)) {
    std::string row;
    for (int i = 0; i < feature->GetFieldCount(); ++i)
      row += (i > 0 ? "|" : "") + std::string(feature->GetFieldAsString(i));
    rows.push_back(row);
    EXPECT_NE(feature->GetGeometryRef(), nullptr);
  }
  return rows;
}

class Catalogue : public ::testing::Test {
 protected:
  void SetUp() override { writeCatalogue(study, book, folder.path(), {}); }

  TestFolder folder;
  Study study = testingStudy();
  FigureBook book{study};
};

TEST_F(Catalogue, HasAWorkspaceAndATableForEveryMap) {
  const std::vector<ThematicMap> maps = thematicMaps(study);
  EXPECT_EQ(maps.size(), 4U * 3 * 20);
  for (const ThematicMap& map : maps) {
    for (const char* ending : {".wor", ".TAB", ".DAT", ".MAP", ".ID"}) {
      EXPECT_TRUE(fs::exists((folder.path() / thematicPath(study, map)).string() + ending));
    }
  }
}

TEST_F(Catalogue, FoldersAreSpelledAsTheProgramReadsThem) {
  for (const char* path : {"Tematicos/2001/Ambos sexos/Veldoria/Provincias/Tasa bruta (x100.000).wor",
                           "Tematicos/2001/Hombres/Veldoria/Zonas básicas/Población.wor",
                           "Tematicos/2001/Mujeres/Álava del Río/Tasa estandarizada (x100.000) de Neumonía.wor"}) {
    EXPECT_TRUE(fs::exists(folder.path() / path)) << path;
  }
}

TEST_F(Catalogue, TablesHoldTheUnitsThatHaveAFigure) {
  const fs::path zones = folder.path() / "Tematicos/2001/Hombres/Veldoria/Zonas básicas";
  EXPECT_EQ(rowsOf(zones / "Tasa bruta (x100.000)"),
            (Rows{"Norte|Tasa bruta (x100.000)|Hombres|Indicadores generales|200",
                  "Ñora|Tasa bruta (x100.000)|Hombres|Indicadores generales|400"}));
  EXPECT_EQ(rowsOf(zones / "Fallecidos").back(), "Vacía|Fallecidos|Hombres|Indicadores generales|0");
  EXPECT_EQ(rowsOf(folder.path() / "Tematicos/2001/Hombres/Baja/Fallecidos"),
            (Rows{"Vacía|Fallecidos|Hombres|Indicadores generales|0"}));
}

TEST_F(Catalogue, ACauseThatASexDoesNotHaveHasAnEmptyTable) {
  EXPECT_TRUE(rowsOf(folder.path() / "Tematicos/2001/Mujeres/Veldoria/Provincias" /
                     "Tasa estandarizada (x100.000) de Tumor maligno de la próstata")
                  .empty());
}

TEST_F(Catalogue, BaseAreasHaveAllUnits) {
  EXPECT_EQ(rowsOf(folder.path() / "Base/Provincias"), (Rows{"Álava del Río", "Baja"}));
  EXPECT_EQ(rowsOf(folder.path() / "Base/ZonasBasicas"), (Rows{"Norte", "Ñora", "Vacía"}));
  EXPECT_EQ(rowsOf(folder.path() / "Base/Zonas/Baja"), (Rows{"Vacía"}));
}

}  // namespace
}  // namespace study
