#include <gtest/gtest.h>
#include <sys/stat.h>

#include "motor/language/error.h"
#include "motor/tables/seamless_parts.h"
#include "motor/tables/table_store.h"
#include "motor/tables/testing_tables.h"
#include "text/file_text.h"

// Tables that were made to do harm.
namespace motor {
namespace {

namespace fs = std::filesystem;
using testing_tables::TemporaryFolder;

constexpr const char* kDamaged = "La tabla «Zonas.tab» está dañada o incompleta y no se puede leer";

class HarmfulTables : public testing::Test {
 protected:
  HarmfulTables() { writeNames("Zonas.tab", {"Soria", "León"}); }

  void writeNames(const std::string& file, const std::vector<std::string>& names) const {
    testing_tables::writeTab(
        folder_.path() / file, nullptr,
        [](OGRLayer& layer) { testing_tables::addColumn(layer, "Nombre", OFTString, 60); },
        [&](OGRLayer& layer) {
          for (const std::string& name : names) {
            const OGRFeatureUniquePtr feature(OGRFeature::CreateFeature(layer.GetLayerDefn()));
            feature->SetField(0, name.c_str());
            testing_tables::addRow(layer, *feature);
          }
        });
  }
  // What is said of the table, or "read".
  static std::string answer(const fs::path& file) {
    const fs::path folder = fs::canonical(file.parent_path());
    try {
      static_cast<void>(
          TableStore().open(file, [&](const fs::path& each) { return fs::canonical(each).parent_path() == folder; }));
    } catch (const EngineError& error) {
      return error.what();
    }
    return "read";
  }

  TemporaryFolder folder_{"harmful_tables_test"};
  TemporaryFolder outside_{"harmful_tables_test_outside"};
  fs::path table_ = folder_.path() / "Zonas.tab";
};

TEST_F(HarmfulTables, aPipeOrADeviceIsNoPartOfATable) {
  ASSERT_EQ(answer(table_), "read");
  for (const char* name : {"Zonas.dat", "Zonas.MAP", "zonas.Id", "Zonas.ind", "Zonas.dbf"}) {
    const fs::path part = folder_.path() / name;
    const fs::path kept = outside_.path() / name;
    if (fs::exists(part)) fs::rename(part, kept);
    fs::create_symlink("/dev/zero", part);
    EXPECT_NE(answer(table_), "read") << name;
    fs::remove(part);
    ASSERT_EQ(mkfifo(part.c_str(), 0600), 0);
    EXPECT_EQ(answer(table_), kDamaged) << name;
    fs::remove(part);
    if (fs::exists(kept)) fs::rename(kept, part);
  }
  fs::remove(table_);
  ASSERT_EQ(mkfifo(table_.c_str(), 0600), 0);
  EXPECT_EQ(answer(table_), "No se encuentra la tabla «Zonas.tab»");
  EXPECT_EQ(answer("/dev/zero"), "No se encuentra la tabla «zero»");
}

TEST_F(HarmfulTables, noPartMayLeadOutOfTheFolder) {
  for (const char* name : {"Zonas.dat", "Zonas.map", "Zonas.id"}) {
    const fs::path part = folder_.path() / name;
    fs::rename(part, outside_.path() / name);
    fs::create_symlink(outside_.path() / name, part);
    EXPECT_EQ(answer(table_), "La tabla «" + std::string(name) + "» está fuera de las carpetas que se pueden leer");
    fs::remove(part);
    fs::rename(outside_.path() / name, part);
  }
  EXPECT_EQ(answer(table_), "read");
}

TEST_F(HarmfulTables, rowsThatAreNotThereAreNotBelieved) {
  const fs::path data = folder_.path() / "Zonas.dat";
  std::string bytes = text::wholeFile(data).value();
  bytes.replace(4, 4, std::string("\x00\x94\x35\x77", 4));  // 2,000,000,000
  folder_.write("Zonas.dat", bytes);
  EXPECT_EQ(answer(table_), kDamaged);
  fs::remove(folder_.path() / "Zonas.map");
  fs::remove(folder_.path() / "Zonas.id");
  EXPECT_EQ(answer(table_), kDamaged);
}

TEST_F(HarmfulTables, anEndlessDefinitionIsNotRead) {
  fs::resize_file(table_, std::uintmax_t{1} << 40U);  // of which the disk holds nothing
  EXPECT_EQ(answer(table_), kDamaged);
}

TEST_F(HarmfulTables, aTableIsPartOfAnotherOnce) {
  writeNames("Todo.tab", {"Zonas.tab", "zonas.TAB"});
  std::ofstream(folder_.path() / "Todo.tab", std::ios::app) << "    \"\\IsSeamless\" = \"TRUE\"\n";
  EXPECT_EQ(answer(folder_.path() / "Todo.tab"), "La tabla «Todo.tab» está dañada o incompleta y no se puede leer");
}

TEST_F(HarmfulTables, viewsInACircleEnd) {
  const auto view = [&](const std::string& name, const std::string& of) {
    return folder_.write(name, "!table\n!version 100\nOpen Table \"" + of + "\" Hide\nOpen Table \"Zonas\" Hide\n" +
                                   "Create View Vista As\nSelect Nombre From " + of + ", Zonas\n");
  };
  EXPECT_NE(answer(view("Vista.tab", "Vista")), "read");
  view("Otra.tab", "Vista");
  EXPECT_NE(answer(view("Vista.tab", "Otra")), "read");
  writeNames("Circulo.tab", {"Circulo.tab"});
  std::ofstream(folder_.path() / "Circulo.tab", std::ios::app) << "    \"\\IsSeamless\" = \"TRUE\"\n";
  EXPECT_NE(answer(folder_.path() / "Circulo.tab"), "read");
}

}  // namespace
}  // namespace motor
