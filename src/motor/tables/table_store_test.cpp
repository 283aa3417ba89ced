#include "motor/tables/table_store.h"

#include <gtest/gtest.h>

#include "motor/language/error.h"
#include "motor/tables/seamless_parts.h"
#include "motor/tables/testing_tables.h"

namespace motor {
namespace {

namespace fs = std::filesystem;
using testing_tables::TemporaryFolder;

constexpr const char* kMif =
    "Version 300\nCharset \"WindowsLatin1\"\nDelimiter \",\"\nColumns 1\n  Nombre Char(20)\nData\n\nNone\n";

class TableStoreTest : public testing::Test {
 protected:
  TableStoreTest() : file_(folder_.write("a.mif", kMif)) { folder_.write("a.MID", "\"uno\"\n"); }

  TemporaryFolder folder_{"table_store_test"};
  fs::path file_;
  TableStore store_;
};

TEST_F(TableStoreTest, readsATableOnce) {
  const auto table = store_.open(file_);
  EXPECT_EQ(table->value(1, 0), Value("uno"));
  EXPECT_EQ(store_.open(file_), table);
  EXPECT_EQ(store_.open(folder_.path() / "." / "a.mif"), table);
}

TEST_F(TableStoreTest, keepsTablesUntilToldToForget) {
  const BaseTable* address = store_.open(file_).get();
  const auto held = store_.open(file_);
  EXPECT_EQ(held.get(), address);
  store_.clear();
  EXPECT_EQ(store_.open(file_), held);
  std::weak_ptr<const BaseTable> let = held;
  const_cast<std::shared_ptr<const BaseTable>&>(held).reset();
  store_.clear();
  EXPECT_TRUE(let.expired());
}

TEST_F(TableStoreTest, readsAChangedTableAgain) {
  const auto before = store_.open(file_);
  folder_.write("a.MID", "\"otro\"\n");
  const auto after = store_.open(file_);
  EXPECT_NE(after, before);
  EXPECT_EQ(after->value(1, 0), Value("otro"));
  EXPECT_EQ(before->value(1, 0), Value("uno"));
}

class PartsTest : public testing::Test {
 protected:
  PartsTest() {
    fs::create_directories(folder_.path() / "dentro");
    writeTexts("Norte", "Nombre", {"Soria"});
    writeTexts("dentro/Todo", "Table", {"..\\norte.tab"});
    std::ofstream(whole_, std::ios::app) << "    \"\\IsSeamless\" = \"TRUE\"\n";
  }

  void writeTexts(const std::string& name, const char* column, const std::vector<std::string>& rows) {
    testing_tables::writeTab(
        folder_.path() / (name + ".tab"), nullptr,
        [&](OGRLayer& layer) { testing_tables::addColumn(layer, column, OFTString, 20); },
        [&](OGRLayer& layer) {
          for (const std::string& row : rows) {
            const OGRFeatureUniquePtr feature(OGRFeature::CreateFeature(layer.GetLayerDefn()));
            feature->SetField(0, row.c_str());
            testing_tables::addRow(layer, *feature);
          }
        });
  }

  TemporaryFolder folder_{"table_parts_test"};
  fs::path whole_ = folder_.path() / "dentro" / "Todo.tab";
  TableStore store_;
};

TEST_F(PartsTest, areReadOnlyWhereTheyMayBe) {
  std::vector<std::string> asked;
  const auto refuse = [&](const fs::path& file) {
    asked.push_back(fs::weakly_canonical(file).filename().string());
    return !asked.back().starts_with("Norte");
  };
  EXPECT_THROW(static_cast<void>(store_.open(whole_, refuse)), EngineError);
  EXPECT_EQ(asked, std::vector<std::string>{"Norte.tab"});
  const auto table = store_.open(whole_);
  EXPECT_EQ(table->value(1, 0), Value("Soria"));
  // Another session may read less, though the table is known by now.
  EXPECT_THROW(static_cast<void>(store_.open(whole_, refuse)), EngineError);
  EXPECT_EQ(store_.open(whole_, [](const fs::path&) { return true; }), table);
}

TEST_F(PartsTest, areReadAgainWhenTheyChange) {
  const auto before = store_.open(whole_);
  for (const char* extension : {".tab", ".dat", ".map", ".id"})
    fs::remove((folder_.path() / "Norte").replace_extension(extension));
  writeTexts("Norte", "Nombre", {"Soria", "León"});
  EXPECT_EQ(before->rowCount(), 1U);
  EXPECT_EQ(store_.open(whole_)->rowCount(), 2U);
}

TEST_F(PartsTest, ofAViewAreThoseItOpens) {
  folder_.write("Vista.tab",
                "!table\n!version 100\nOpen Table \"Norte\" Hide\nOpen table \"dentro\\todo.TAB\" Hide\n"
                "Create View Vista As\nSelect Nombre From Norte, Todo\n");
  std::vector<std::string> names;
  const auto any = [](const fs::path&) { return true; };
  for (const fs::path& part : allParts(folder_.path() / "Vista.tab", any)) names.push_back(part.filename().string());
  EXPECT_EQ(names, (std::vector<std::string>{"Norte.tab", "Todo.tab", "Norte.tab"}));
}

TEST_F(TableStoreTest, failsForAMissingTable) {
  EXPECT_THROW(static_cast<void>(store_.open(folder_.path() / "b.mif")), EngineError);
}

}  // namespace
}  // namespace motor
