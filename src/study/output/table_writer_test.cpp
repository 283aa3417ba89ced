#include "study/output/table_writer.h"

#include <gtest/gtest.h>
#include <ogrsf_frmts.h>

#include "study/model/study_error.h"
#include "study/output/test_folder.h"

namespace study {
namespace {

const std::vector<Ring> kSquareWithHole{{{500'000, 4'500'000}, {510'000.01, 4'500'000}, {510'000.01, 4'510'000.37}},
                                        {{505'000, 4'501'000}, {509'000, 4'504'000}, {507'000, 4'501'500}}};

const MapProjection kProjection{R"(Earth Projection 8, 104, "m", -3, 0, 0.9996, 500000, 0)",
                                {0, 4'000'000, 1'000'000, 5'000'000}};

std::vector<Column> columns() {
  return {{"Año", Column::Type::integer}, {"Nombre", Column::Type::text, 12}, {"Valor", Column::Type::number}};
}

TEST(TableWriter, WritesWhatTheLibraryReadsBack) {
  const TestFolder test;
  {
    TableWriter table(test.path(), "Prueba", columns(), kProjection);
    table.add({1999, std::string("Ñandú güeña"), 12.345}, {kSquareWithHole, {0x4A6172, 2, std::nullopt}});
    table.add({2002, std::string("Á"), 0.0}, {{kSquareWithHole[0]}, {std::nullopt, 1, 0xEEF2E6}});
    table.close();
  }
  for (const char* name : {"Prueba.TAB", "Prueba.DAT", "Prueba.MAP", "Prueba.ID"}) {
    EXPECT_TRUE(std::filesystem::exists(test.path() / name)) << name;
  }
  EXPECT_NE(bytesOf(test.path() / "Prueba.TAB").find("WindowsLatin1"), std::string::npos);
  EXPECT_NE(bytesOf(test.path() / "Prueba.TAB").find("A\xF1o Integer"), std::string::npos);
  EXPECT_EQ(bytesOf(test.path() / "Prueba.DAT").substr(32, 4), std::string("A\xF1o\0", 4));

  RegisterOGRTAB();
  const GDALDatasetUniquePtr dataset(
      GDALDataset::Open((test.path() / "Prueba.TAB").c_str(), GDAL_OF_VECTOR, nullptr, nullptr, nullptr));
  ASSERT_TRUE(dataset);
  OGRLayer* layer = dataset->GetLayer(0);
  ASSERT_EQ(layer->GetLayerDefn()->GetFieldCount(), 3);
  EXPECT_STREQ(layer->GetLayerDefn()->GetFieldDefn(0)->GetNameRef(), "Año");
  const OGRFeatureUniquePtr first(layer->GetNextFeature());
  ASSERT_TRUE(first);
  EXPECT_EQ(first->GetFieldAsInteger(0), 1999);
  EXPECT_STREQ(first->GetFieldAsString(1), "Ñandú güeña");
  EXPECT_EQ(first->GetFieldAsDouble(2), 12.345);
  EXPECT_NE(std::string(first->GetStyleString()).find("mapinfo-brush-1"), std::string::npos);
  EXPECT_NE(std::string(first->GetStyleString()).find("PEN(w:2px,c:#4a6172"), std::string::npos);
  const OGRPolygon* polygon = first->GetGeometryRef()->toPolygon();
  EXPECT_EQ(polygon->getNumInteriorRings(), 1);
  EXPECT_NEAR(polygon->getExteriorRing()->getX(1) + polygon->getExteriorRing()->getX(0), 1'010'000.01, 1e-6);
  const OGRFeatureUniquePtr second(layer->GetNextFeature());
  EXPECT_NE(std::string(second->GetStyleString()).find("mapinfo-brush-2"), std::string::npos);
  EXPECT_NE(std::string(second->GetStyleString()).find("mapinfo-pen-1"), std::string::npos);
}

TEST(TableWriter, TextsFitTheirColumns) {
  const TestFolder test;
  TableWriter table(test.path(), "Prueba", columns(), kProjection);
  const TableObject object({kSquareWithHole[0]}, {});
  table.add({1999, std::string("ññññññññññññ"), 1.0}, object);
  EXPECT_THROW(table.add({1999, std::string("ñññññññññññññ"), 1.0}, object), StudyError);
}

TEST(TableWriter, FolderThatIsNotThereIsAnError) {
  const TestFolder test;
  EXPECT_THROW(TableWriter(test.path() / "none", "Prueba", columns(), kProjection), StudyError);
}

}  // namespace
}  // namespace study
