#include <gtest/gtest.h>
#include <sys/resource.h>

#include <map>
#include <random>

#include "motor/language/error.h"
#include "motor/tables/base_table.h"
#include "motor/tables/testing_tables.h"
#include "text/file_text.h"

// Whatever a table's files hold, there is a table or the engine's error.
namespace motor {
namespace {

namespace fs = std::filesystem;
using testing_tables::addColumn;
using testing_tables::addRow;
using testing_tables::TemporaryFolder;

constexpr RowId kRows = 40;

std::unique_ptr<OGRGeometry> objectOf(RowId row) {
  const double x = row * 0.1;
  switch (row % 4) {
    case 0:
      return std::make_unique<OGRPoint>(x, 40);
    case 1: {
      auto line = std::make_unique<OGRLineString>();
      for (int k = 0; k < 20; ++k) line->addPoint(x + k, 40 + k % 3);
      return line;
    }
    case 2: {
      OGRLinearRing ring;
      for (int k = 0; k < 30; ++k) ring.addPoint(x + k % 7, 40 + k * 0.1);
      ring.closeRings();
      auto region = std::make_unique<OGRPolygon>();
      region->addRing(&ring);
      return region;
    }
    default:
      return nullptr;
  }
}

// A table with columns and objects of every kind.
void writeWhole(const fs::path& file) {
  testing_tables::writeTab(
      file, "Earth Projection 8, 28, \"m\", -3, 0, 0.9996, 500000, 0",
      [](OGRLayer& layer) {
        addColumn(layer, "Nombre", OFTString, 30);
        addColumn(layer, "Casos", OFTInteger);
        addColumn(layer, "Tasa", OFTReal);
        addColumn(layer, "Valor", OFTReal, 10, 2);
        addColumn(layer, "Dia", OFTDate);
        addColumn(layer, "Hora", OFTTime);
      },
      [](OGRLayer& layer) {
        for (RowId row = 0; row < kRows; ++row) {
          const OGRFeatureUniquePtr feature(OGRFeature::CreateFeature(layer.GetLayerDefn()));
          feature->SetField(0, ("Ávila " + std::to_string(row)).c_str());
          feature->SetField(1, static_cast<int>(row));
          feature->SetField(2, row / 7.0);
          feature->SetField(3, row / 4.0);
          feature->SetField(4, 1999, 1, 1 + static_cast<int>(row) % 28);
          feature->SetGeometry(objectOf(row).get());
          addRow(layer, *feature);
        }
      });
}

class DamagedTables : public testing::Test {
 protected:
  // Whether the table can be read, and all that it holds.
  bool isReadable(const std::string& name) {
    try {
      const auto table = BaseTable::read(folder_.path() / name);
      EXPECT_LE(table->rowCount(), kRows);
      for (RowId row = 1; row <= table->rowCount(); ++row) {
        for (std::size_t i = 0; i < table->columns().size(); ++i) static_cast<void>(table->value(row, i).toText());
        static_cast<void>(table->object(row));
      }
      return true;
    } catch (const EngineError& error) {
      EXPECT_NE(std::string(error.what()).find(name), std::string::npos);
      return false;
    }
  }

  // The most memory that the program has had so far, in kilobytes.
  static long peakMemory() {
    rusage used{};
    EXPECT_EQ(getrusage(RUSAGE_SELF, &used), 0);
    return used.ru_maxrss;
  }
  void expectLittleMemory() const { EXPECT_LT(peakMemory() - peakBefore_, 1024 * 1024); }

  TemporaryFolder folder_{"damaged_tables_test"};

 private:
  long peakBefore_ = peakMemory();
};

class DamagedTabFiles : public DamagedTables, public testing::WithParamInterface<const char*> {
 protected:
  DamagedTabFiles() {
    writeWhole(folder_.path() / "Entera.tab");
    bytes_ = text::wholeFile(folder_.path() / name()).value();
  }
  [[nodiscard]] static std::string name() { return std::string("Entera") + GetParam(); }
  [[nodiscard]] std::size_t anyPlace() { return random_() % bytes_.size(); }

  std::string bytes_;
  std::mt19937 random_{19990101};
};

TEST_P(DamagedTabFiles, areCutAnywhere) {
  int readable = 0;
  for (int i = 0; i < 1000; ++i) {
    folder_.write(name(), bytes_.substr(0, anyPlace()));
    readable += isReadable("Entera.tab") ? 1 : 0;
  }
  EXPECT_LT(readable, 1000);
  folder_.write(name(), bytes_);
  EXPECT_TRUE(isReadable("Entera.tab"));
  expectLittleMemory();
}

TEST_P(DamagedTabFiles, areChangedAnywhere) {
  constexpr std::string_view kExtremes("\x00\xFF\x7F\x80\x01", 5);
  int readable = 0;
  for (int i = 0; i < 1000; ++i) {
    std::string changed = bytes_;
    for (std::size_t changes = random_() % 8 + 1; changes > 0; --changes) {
      changed[anyPlace()] = random_() % 2 == 0 ? static_cast<char>(random_()) : kExtremes[random_() % kExtremes.size()];
    }
    folder_.write(name(), changed);
    readable += isReadable("Entera.tab") ? 1 : 0;
  }
  EXPECT_GT(readable, 0);
  expectLittleMemory();
}

INSTANTIATE_TEST_SUITE_P(Tables, DamagedTabFiles, testing::Values(".tab", ".dat", ".map", ".id"));

TEST_F(DamagedTables, MifFilesAreCutAtEveryByte) {
  const std::string mif =
      "Version 300\nCharset \"WindowsLatin1\"\nDelimiter \",\"\nUnique 1\nIndex 1\n"
      "CoordSys Earth Projection 8, 28, \"m\", -3, 0, 0.9996, 500000, 0 Bounds (0, 0) (10, 10)\n"
      "Columns 6\n  A\xF1o Char(4)\n  Nombre Char(20)\n  Valor Decimal(10,2)\n  Casos LargeInt\n  Alta Logical\n  Dia "
      "Date\nData\n\n"
      "Region 2\n4\n0 0\n9 0\n9 9\n0 0\n4\n1 1\n2 1\n2 2\n1 1\n    Pen (3,5,255)\n    Brush (15,1,2)\n    Center 5 5\n"
      "Pline Multiple 2\n2\n0 0\n1 1\n3\n5 5\n6 6\n7 5\n    Smooth\nLine 1 2 3 4\nArc 0 0 4 4\n10 20\n"
      "Text \"a\\nb\"\n    1 2 10 5\n    Font (\"Arial\",1,0,255)\n    Justify Center\n    Label Line Arrow 1 2\n"
      "Rect 0 0 3 2\nRoundrect 0 0 3 2 1\nEllipse 0 0 4 4\nMultipoint 2\n1 1\n2 2\nPoint 3 4\n    Symbol "
      "(34,255,14)\nnone\n";
  std::string mid;
  for (int row = 0; row < 11; ++row) mid += "\"1999\",\"\xC1vila\",12.5,3,T,19990131\n";
  const auto isReadableAs = [&](const std::string& cutMif, const std::string& cutMid) {
    folder_.write("tabla.mid", cutMid);
    folder_.write("tabla.mif", cutMif);
    return isReadable("tabla.mif");
  };
  EXPECT_TRUE(isReadableAs(mif, mid));
  for (std::size_t length = 0; length < mif.size(); ++length) isReadableAs(mif.substr(0, length), mid);
  for (std::size_t length = 0; length < mid.size(); ++length) isReadableAs(mif, mid.substr(0, length));
  EXPECT_FALSE(isReadableAs(mif.substr(0, mif.find("Columns")), mid));
  expectLittleMemory();
}

}  // namespace
}  // namespace motor
