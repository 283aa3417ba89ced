#include "motor/tables/base_table.h"

#include <gtest/gtest.h>

#include "motor/language/error.h"
#include "motor/tables/testing_tables.h"

namespace motor {
namespace {

namespace fs = std::filesystem;
using testing_tables::addColumn;
using testing_tables::addRow;
using testing_tables::TemporaryFolder;

// "Año", "Ávila" in the bytes of Western European tables.
constexpr const char* kMifHead =
    "Version 300\nCharset \"WindowsLatin1\"\nDelimiter \",\"\n"
    "CoordSys Earth Projection 8, 28, \"m\", -3, 0, 0.9996, 500000, 0\n"
    "Columns 6\n  A\xF1o Char(4)\n  Nombre Char(20)\n  Valor Decimal(10,2)\n  Casos Integer\n  Alta Logical\n  Dia "
    "Date\n"
    "Data\n\n";
constexpr const char* kSquare =
    "Region 1\n5\n0 0\n10 0\n10 10\n0 10\n0 0\n    Pen (3,5,255)\n    Brush (15,16711680,255)\n";

std::string mifRows(int count) {
  std::string rows;
  for (int i = 0; i < count; ++i) rows += kSquare;
  return rows;
}

class BaseTableTest : public testing::Test {
 protected:
  std::shared_ptr<const BaseTable> readMif(const std::string& mif, const std::string& mid) const {
    folder_.write("tabla.mid", mid);
    return BaseTable::read(folder_.write("tabla.mif", mif));
  }

  TemporaryFolder folder_{"base_table_test"};
};

TEST_F(BaseTableTest, readsColumnsByType) {
  const auto table = readMif(std::string(kMifHead) + mifRows(2),
                             "\"1999\",\"\xC1vila  \",12.5,3,T,19990131\n\"2000\",\"Le\xF3n\",-1.25,4,F,20001231\n");
  ASSERT_EQ(table->rowCount(), 2U);
  struct Case {
    const char* name;
    Column::Type type;
    Value first;
    Value second;
  };
  const Case cases[] = {
      {"Año", Column::Type::text, "1999", "2000"},  {"Nombre", Column::Type::text, "Ávila", "León"},
      {"Valor", Column::Type::number, 12.5, -1.25}, {"Casos", Column::Type::integer, 3, 4},
      {"Alta", Column::Type::logical, true, false}, {"Dia", Column::Type::date, "19990131", "20001231"},
  };
  ASSERT_EQ(table->columns().size(), std::size(cases));
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    EXPECT_EQ(table->columns()[i].name, cases[i].name);
    EXPECT_EQ(table->columns()[i].type, cases[i].type) << cases[i].name;
    EXPECT_EQ(table->value(1, i), cases[i].first) << cases[i].name;
    EXPECT_EQ(table->value(2, i), cases[i].second) << cases[i].name;
  }
  EXPECT_EQ(table->columns()[2].width, 10);
  EXPECT_EQ(table->columns()[2].decimals, 2);
  EXPECT_EQ(table->columns()[1].width, 20);
  EXPECT_EQ(table->coordinateSystem(),
            CoordinateSystem::fromClause("Earth Projection 8, 28, \"m\", -3, 0, 0.9996, 500000, 0"));
}

TEST_F(BaseTableTest, findsColumns) {
  const auto table = readMif(std::string(kMifHead) + mifRows(1), "\"1999\",\"x\",1,1,T,19990131\n");
  EXPECT_EQ(table->findColumn("AÑO"), 0U);
  EXPECT_EQ(table->findColumn("nombre"), 1U);
  EXPECT_EQ(table->findColumn("col6"), 5U);
  for (const char* name : {"col7", "col0", "col", "col1x", "ano", ""}) {
    EXPECT_EQ(table->findColumn(name), std::nullopt) << name;
  }
}

TEST_F(BaseTableTest, sharesObjectsOfTheSameShapeAndStyle) {
  const std::string other = "Region 1\n5\n0 0\n10 0\n10 10\n0 10\n0 0\n    Pen (1,2,0)\n    Brush (2,255,0)\n";
  const std::string mid = "\"1\",\"a\",1,1,T,19990131\n";
  const auto table =
      readMif(std::string(kMifHead) + kSquare + other + kSquare + "None\n" + other, mid + mid + mid + mid + mid);
  ASSERT_EQ(table->rowCount(), 5U);
  EXPECT_NE(table->object(1), nullptr);
  EXPECT_EQ(table->object(1), table->object(3));
  EXPECT_EQ(table->object(2), table->object(5));
  EXPECT_NE(table->object(1), table->object(2));
  EXPECT_EQ(table->object(4), nullptr);
  const ObjectSet& set = table->objectSet();
  ASSERT_EQ(set.objects().size(), 2U);
  EXPECT_EQ(std::vector<RowId>(set.rowsOf(0).begin(), set.rowsOf(0).end()), (std::vector<RowId>{1, 3}));
  EXPECT_EQ(std::vector<RowId>(set.rowsOf(1).begin(), set.rowsOf(1).end()), (std::vector<RowId>{2, 5}));
  EXPECT_EQ(set.indexOf(4), ObjectSet::kNone);
  EXPECT_EQ(table->object(1)->pen, (Pen{3, 5, 255}));
  EXPECT_EQ(table->object(1)->brush, (Brush{15, 16711680, 255}));
  EXPECT_EQ(table->bounds(), (Box{0, 0, 10, 10}));
  EXPECT_EQ(table->objectsIn(Box{5, 5, 6, 6}), (std::vector<std::uint32_t>{0, 1}));
  EXPECT_TRUE(table->objectsIn(Box{11, 5, 16, 6}).empty());
}

TEST_F(BaseTableTest, readsEveryKindOfObject) {
  const std::string head =
      "Version 300\nCharset \"WindowsLatin1\"\nDelimiter \",\"\nCoordSys NonEarth Units \"m\" Bounds (-100, -100) "
      "(100, 100)\n"
      "Columns 1\n  N Integer\nData\n\n";
  const std::string objects =
      "Point 3 4\n    Symbol (34,255,14)\n"
      "Pline Multiple 2\n2\n0 0\n1 1\n3\n5 5\n6 6\n7 5\n    Pen (2,2,0)\n"
      "Region 2\n5\n0 0\n10 0\n10 10\n0 10\n0 0\n4\n2 2\n4 2\n4 4\n2 2\n    Pen (1,2,0)\n    Brush (2,255)\n"
      "Rect 0 0 3 2\n    Pen (1,2,0)\n    Brush (1,0)\n"
      "Ellipse 0 0 4 4\n    Pen (1,2,0)\n    Brush (1,0)\n"
      "Text \"Hola\"\n    1 2 10 5\n    Font (\"Tahoma\",1,0,255)\n";
  const auto table = readMif(head + objects, "1\n2\n3\n4\n5\n6\n");
  ASSERT_EQ(table->rowCount(), 6U);
  struct Case {
    MapObject::Kind kind;
    std::size_t parts;
    std::size_t points;
  };
  const Case cases[] = {{MapObject::Kind::point, 1, 1},  {MapObject::Kind::polyline, 2, 5},
                        {MapObject::Kind::region, 2, 9}, {MapObject::Kind::region, 1, 5},
                        {MapObject::Kind::region, 1, 0}, {MapObject::Kind::text, 1, 1}};
  for (RowId row = 1; row <= 6; ++row) {
    const ObjectPtr& object = table->object(row);
    ASSERT_NE(object, nullptr) << row;
    EXPECT_EQ(object->kind, cases[row - 1].kind) << row;
    EXPECT_EQ(object->partCount(), cases[row - 1].parts) << row;
    if (cases[row - 1].points != 0) {
      EXPECT_EQ(object->points.size(), cases[row - 1].points) << row;
    }
  }
  EXPECT_EQ(table->object(1)->symbol.shape, 34);
  EXPECT_EQ(table->object(4)->bounds, (Box{0, 0, 3, 2}));
  const MapObject& text = *table->object(6);
  EXPECT_EQ(text.text, "Hola");
  EXPECT_EQ(text.font.name, "Tahoma");
  EXPECT_NEAR(text.lineHeight, 3, 0.01);
  EXPECT_NEAR(text.bounds.maxY, 5, 0.02);
}

TEST_F(BaseTableTest, deletedRowsKeepTheirNumbers) {
  const fs::path file = folder_.path() / "Zonas.tab";
  testing_tables::writeTab(
      file, "Earth Projection 1, 104", [](OGRLayer& layer) { addColumn(layer, "Región", OFTString, 10); },
      [](OGRLayer& layer) {
        for (int i = 1; i <= 4; ++i) {
          const OGRFeatureUniquePtr feature(OGRFeature::CreateFeature(layer.GetLayerDefn()));
          feature->SetField(0, ("fila ñ" + std::to_string(i)).c_str());
          const OGRPoint point(i, 40);
          feature->SetGeometry(&point);
          addRow(layer, *feature);
        }
      });
  {
    const GDALDatasetUniquePtr dataset(GDALDataset::Open(file.string().c_str(), GDAL_OF_VECTOR | GDAL_OF_UPDATE));
    ASSERT_EQ(dataset->GetLayer(0)->DeleteFeature(2), OGRERR_NONE);
  }
  const auto table = BaseTable::read(file);
  ASSERT_EQ(table->rowCount(), 4U);
  EXPECT_EQ(table->columns()[0].name, "Región");
  EXPECT_FALSE(table->isDeleted(1));
  EXPECT_TRUE(table->isDeleted(2));
  EXPECT_EQ(table->value(3, 0), Value("fila ñ3"));
  EXPECT_EQ(table->object(2), nullptr);
  EXPECT_EQ(table->rowsEqual(0, "FILA Ñ4"), (std::vector<RowId>{4}));
  EXPECT_TRUE(table->rowsEqual(0, "").empty());
  EXPECT_TRUE(table->coordinateSystem().isLongLat());
  EXPECT_NEAR(table->bounds().maxX, 4, 1e-4);
}

TEST_F(BaseTableTest, readsTablesWithoutObjects) {
  const std::string head =
      "Version 300\nCharset \"WindowsLatin1\"\nDelimiter \",\"\nColumns 1\n  N Integer\nData\n\nNone\nNone\n";
  const auto table = readMif(head, "1\n2\n");
  EXPECT_EQ(table->rowCount(), 2U);
  EXPECT_FALSE(table->hasObjects());
  EXPECT_TRUE(table->bounds().isEmpty());
  EXPECT_TRUE(table->objectsIn(Box{-1e9, -1e9, 1e9, 1e9}).empty());
}

TEST_F(BaseTableTest, aTableWithoutRowsHasObjectsIfItHasAFileForThem) {
  const auto file = folder_.path() / "vacia.tab";
  testing_tables::writeTab(
      file, "Earth Projection 1, 104", [](OGRLayer& layer) { addColumn(layer, "N", OFTInteger); }, [](OGRLayer&) {});
  EXPECT_EQ(BaseTable::read(file)->rowCount(), 0U);
  EXPECT_TRUE(BaseTable::read(file)->hasObjects());
  std::filesystem::remove(folder_.path() / "vacia.map");
  std::filesystem::remove(folder_.path() / "vacia.id");
  EXPECT_FALSE(BaseTable::read(file)->hasObjects());
}

TEST_F(BaseTableTest, takesUndeclaredCharsetsAsWesternEuropean) {
  const std::string head =
      "Version 300\nCharset \"Neutral\"\nDelimiter \",\"\nColumns 2\n  A\xF1o Integer\n  Nombre "
      "Char(20)\nData\n\nNone\nNone\n";
  const auto table = readMif(head, "1,\"\xC1vila\"\n2,\"Le\xC3\xB3n\"\n");
  EXPECT_EQ(table->columns()[0].name, "Año");
  EXPECT_EQ(table->value(1, 1), Value("Ávila"));
  EXPECT_EQ(table->value(2, 1), Value("León"));
}

TEST_F(BaseTableTest, saysWhichFileIsMissingOrDamaged) {
  const auto message = [](const fs::path& file) -> std::string {
    try {
      static_cast<void>(BaseTable::read(file));
    } catch (const EngineError& error) {
      return error.what();
    }
    return "read";
  };
  EXPECT_EQ(message(folder_.path() / "Falta.tab"), "No se encuentra la tabla «Falta.tab»");
  EXPECT_EQ(message(folder_.path()), "No se encuentra la tabla «base_table_test»");
  EXPECT_EQ(message(folder_.write("Mala.tab", "no es una tabla")),
            "La tabla «Mala.tab» está dañada o incompleta y no se puede leer");
}

TEST_F(BaseTableTest, takesCoordinatesWithoutASystemAsDegreesIfTheyCanBe) {
  const std::string head = "Version 300\nCharset \"WindowsLatin1\"\nDelimiter \",\"\nColumns 1\n  N Integer\nData\n\n";
  EXPECT_EQ(readMif(head + "Point -3.5 40.25\n", "1\n")->coordinateSystem(), CoordinateSystem());
  EXPECT_EQ(readMif(head + "Point 440000 4474000\n", "1\n")->coordinateSystem(),
            CoordinateSystem::fromClause("NonEarth Units \"m\""));
}

// A seamless table is a list of the tables that it is put together from.
TEST_F(BaseTableTest, readsTheTablesOfASeamlessTable) {
  const auto write = [&](const std::string& name, const char* column, const std::vector<std::string>& rows) {
    testing_tables::writeTab(
        folder_.path() / (name + ".tab"), nullptr, [&](OGRLayer& layer) { addColumn(layer, column, OFTString, 20); },
        [&](OGRLayer& layer) {
          for (const std::string& row : rows) {
            const OGRFeatureUniquePtr feature(OGRFeature::CreateFeature(layer.GetLayerDefn()));
            feature->SetField(0, row.c_str());
            addRow(layer, *feature);
          }
        });
  };
  write("Norte", "Nombre", {"León", "Soria"});
  write("Sur", "Nombre", {"Ávila"});
  write("Todo", "Table", {"norte.tab", "Sur.tab"});
  std::ofstream(folder_.path() / "Todo.tab", std::ios::app) << "    \"\\IsSeamless\" = \"TRUE\"\n";
  const auto table = BaseTable::read(folder_.path() / "Todo.tab");
  ASSERT_EQ(table->rowCount(), 3U);
  EXPECT_EQ(table->columns()[0].name, "Nombre");
  EXPECT_EQ(table->value(2, 0), Value("Soria"));
  EXPECT_EQ(table->value(3, 0), Value("Ávila"));
  fs::remove(folder_.path() / "Sur.tab");
  EXPECT_THROW(static_cast<void>(BaseTable::read(folder_.path() / "Todo.tab")), EngineError);
}

}  // namespace
}  // namespace motor
