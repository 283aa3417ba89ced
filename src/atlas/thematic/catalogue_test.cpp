#include "atlas/thematic/catalogue.h"

#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;

const char* const kFirstYear = "C:\\Estudio\\Tablas\\Tematicos\\1999\\Ambos sexos";

TEST(Catalogue, FramesAreTheRegionThenTheProvincesInOrder) {
  testing::World world;
  world.folderNames[kFirstYear] = {"Zarza", "Ávila", "veldoria", "Norte", "Burgo", "Ñora"};
  EXPECT_EQ(catalogueFrames(world, testing::kFolder), (Lines{"Veldoria", "Ávila", "Burgo", "Norte", "Ñora", "Zarza"}));
}

TEST(Catalogue, FolderNamesAreComposed) {
  testing::World world;
  world.folderNames[kFirstYear] = {"A\u0301vila"};
  EXPECT_EQ(catalogueFrames(world, testing::kFolder), (Lines{"Veldoria", "Ávila"}));
}

TEST(Catalogue, WithoutFoldersOnlyTheRegionIsThere) {
  testing::World world;
  EXPECT_EQ(catalogueFrames(world, testing::kFolder), (Lines{"Veldoria"}));
}

TEST(Catalogue, OnlyTheRegionHasUnits) {
  EXPECT_EQ(pathInYear({.isWholeRegion = true,
                        .sex = "Hombres",
                        .frame = "Veldoria",
                        .unit = "Provincias",
                        .indicator = "Tasa bruta (x100.000)"}),
            "Hombres\\Veldoria\\Provincias\\Tasa bruta (x100.000).wor");
  EXPECT_EQ(pathInYear({.isWholeRegion = false,
                        .sex = "Mujeres",
                        .frame = "Norte",
                        .unit = "Zonas básicas",
                        .indicator = "Tasa estandarizada (x100.000) de Neumonía"}),
            "Mujeres\\Norte\\Tasa estandarizada (x100.000) de Neumonía.wor");
}

}  // namespace
}  // namespace atlas
