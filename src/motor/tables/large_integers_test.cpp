#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <fstream>

#include "motor/tables/base_table.h"
#include "motor/tables/declared_columns.h"

// Columns of 64-bit numbers, which the format library does not know.
namespace motor {
namespace {

namespace fs = std::filesystem;

constexpr std::int64_t kNumbers[] = {0, 1, -1, 123456789012345, -9007199254740992, 9007199254740991};

fs::path freshFolder() {
  const fs::path folder = fs::path(testing::TempDir()) / "large_integers";
  fs::create_directories(folder);
  return folder;
}

// The low bytes of a number, the lowest first.
void put(std::string& bytes, std::uint64_t number, int count) {
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

void putField(std::string& bytes, const std::string& name, int length) {
  std::string field = name;
  field.resize(11, '\0');
  field += 'C';
  field.append(4, '\0');
  field += static_cast<char>(length);
  field.resize(32, '\0');
  bytes += field;
}

fs::path writeTab() {
  const fs::path folder = freshFolder();
  std::ofstream(folder / "Grandes.TAB", std::ios::binary)
      << "!table\r\n!version 900\r\n!charset WindowsLatin1\r\n\r\nDefinition Table\r\n  Type NATIVE Charset "
         "\"WindowsLatin1\"\r\n  Fields 2\r\n    Numero LargeInt ;\r\n    LargeInt Char (4) ;\r\n";
  constexpr int kHeader = 32 + 2 * 32 + 1;
  constexpr int kRecord = 1 + 8 + 4;
  std::string bytes("\x03\x64\x01\x01", 4);
  put(bytes, std::size(kNumbers), 4);
  put(bytes, kHeader, 2);
  put(bytes, kRecord, 2);
  bytes.resize(32, '\0');
  putField(bytes, "Numero", 8);
  putField(bytes, "LargeInt", 4);
  bytes += '\r';
  for (const std::int64_t number : kNumbers) {
    bytes += ' ';
    put(bytes, static_cast<std::uint64_t>(number), 8);
    bytes += "fila";
  }
  std::ofstream(folder / "Grandes.DAT", std::ios::binary) << bytes;
  return folder / "Grandes.TAB";
}

fs::path writeMif() {
  const fs::path folder = freshFolder();
  std::ofstream(folder / "grandes2.mif") << "Version 900\nCharset \"WindowsLatin1\"\nDelimiter \",\"\nColumns 2\n  "
                                            "Numero LargeInt\n  LargeInt Char(4)\nData\n\n";
  std::ofstream rows(folder / "grandes2.mid");
  std::ofstream mif(folder / "grandes2.mif", std::ios::app);
  for (const std::int64_t number : kNumbers) {
    rows << number << ",\"fila\"\n";
    mif << "none\n";
  }
  return folder / "grandes2.mif";
}

TEST(LargeIntegersTest, areReadFromBothFormats) {
  for (const fs::path& file : {writeTab(), writeMif()}) {
    const auto table = BaseTable::read(file);
    ASSERT_EQ(table->rowCount(), std::size(kNumbers)) << file;
    EXPECT_EQ(table->columns()[0].type, Column::Type::integer);
    for (RowId row = 1; row <= table->rowCount(); ++row) {
      EXPECT_EQ(table->value(row, 0), Value(static_cast<double>(kNumbers[row - 1]))) << file << " " << row;
      EXPECT_EQ(table->value(row, 1).toText(), "fila");
    }
  }
}

TEST(LargeIntegersTest, onlyDeclarationsAreChanged) {
  EXPECT_EQ(withLargeIntegersAs("Float", "LargeInt 1\nFields 2\n  a LargeInt ;\n  LargeInt Char (3) ;\nb LargeInt\n"),
            "LargeInt 1\nFields 2\n  a Float ;\n  LargeInt Char (3) ;\nb LargeInt\n");
  EXPECT_EQ(withLargeIntegersAs("Float", "Columns 1\r\na largeint\r\nData"), "Columns 1\r\na Float\r\nData");
  EXPECT_EQ(withLargeIntegersAs("Float", ""), "");
}

}  // namespace
}  // namespace motor
