#include "motor/tables/table_store.h"

#include <gtest/gtest.h>

#include "motor/language/error.h"
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

TEST_F(TableStoreTest, failsForAMissingTable) {
  EXPECT_THROW(static_cast<void>(store_.open(folder_.path() / "b.mif")), EngineError);
}

}  // namespace
}  // namespace motor
