#ifdef VELDORIA_SAMPLE_TABLES

#include <gtest/gtest.h>

#include <algorithm>

#include "motor/language/error.h"
#include "motor/tables/base_table.h"
#include "text/utf8.h"

namespace motor {
namespace {

namespace fs = std::filesystem;

const fs::path kFolder = VELDORIA_SAMPLE_TABLES;

TEST(SampleTablesTest, everyTableOpensOrSaysWhyNot) {
  int opened = 0;
  std::vector<std::string> refused;
  for (const fs::directory_entry& entry : fs::directory_iterator(kFolder)) {
    const std::string extension = text::lower(entry.path().extension().string());
    if (extension != ".tab" && extension != ".mif") continue;
    try {
      const auto table = BaseTable::read(entry.path());
      ++opened;
      for (RowId row = 1; row <= table->rowCount(); ++row) {
        for (std::size_t i = 0; i < table->columns().size(); ++i) static_cast<void>(table->value(row, i).toText());
      }
    } catch (const EngineError&) {
      refused.push_back(entry.path().filename().string());
    }
  }
  EXPECT_EQ(refused, std::vector<std::string>());
  EXPECT_GT(opened, 27);
}

TEST(SampleTablesTest, knowsRowsColumnsAndSystems) {
  struct Case {
    const char* file;
    RowId rows;
    const char* columns;  // the first of them
    const char* clause;   // its beginning
  };
  const Case cases[] = {
      {"poly_indexed.tab", 10, "AREA,EAS_ID,PRFEDEA,", "Earth Projection 8, 10"},
      {"polygon_without_index.tab", 4,
       "Nom_Commune,INSEE_Commune,INSEE_Région,Nom_Région,INSEE_Département,Nom_Département,",
       "Earth Projection 3, 33"},
      {"seamless.tab", 4, "id,str,", "Earth Projection 1, 104"},
      {"view_first_table_second_table.tab", 1, "ID,foo,", "NonEarth Units \"m\""},
      {"tab_with_dbf_with_delete_column.tab", 1, "id,str,", "Earth Projection 1, 104"},
      {"proj_34.mif", 1, "aa,", "NonEarth Units \"m\""},
      {"all_possible_fields.tab", 2, "field1,Field2,Field3,Field4,Field5,", ""},
      {"all_possible_fields.mif", 2, "field1,Field2,Field3,Field4,Field5,", ""},
      {"small.mif", 2, "NAME,DATA,OWNER,APPRAISED_VALUE,TAXES,FLOODZONE,", "NonEarth Units"},
  };
  for (const Case& c : cases) {
    const auto table = BaseTable::read(kFolder / c.file);
    EXPECT_EQ(table->rowCount(), c.rows) << c.file;
    std::string columns;
    for (const Column& column : table->columns()) columns += column.name + ",";
    EXPECT_EQ(columns.substr(0, std::string(c.columns).size()), c.columns) << c.file;
    const std::string& clause = table->coordinateSystem().clause();
    EXPECT_EQ(clause.substr(0, std::string(c.clause).size()), c.clause) << c.file;
  }
}

TEST(SampleTablesTest, decodesOtherCharsetsAlike) {
  struct Twins {
    const char* one;
    const char* other;
  };
  for (const Twins& twins : {Twins{"tab-win1251.TAB", "win1251.mif"}, Twins{"win1251.mif", "utf8.mif"}}) {
    const auto one = BaseTable::read(kFolder / twins.one);
    const auto other = BaseTable::read(kFolder / twins.other);
    ASSERT_EQ(one->rowCount(), other->rowCount());
    ASSERT_EQ(one->columns().size(), other->columns().size());
    for (std::size_t i = 0; i < one->columns().size(); ++i) {
      EXPECT_EQ(one->columns()[i].name, other->columns()[i].name);
      for (RowId row = 1; row <= one->rowCount(); ++row) EXPECT_EQ(one->value(row, i), other->value(row, i));
    }
  }
  EXPECT_EQ(BaseTable::read(kFolder / "win1251.mif")->columns()[0].name, "Поле_А");
}

TEST(SampleTablesTest, readsTheRowsOfEveryPart) {
  const auto table = BaseTable::read(kFolder / "seamless.tab");
  std::string texts;
  for (RowId row = 1; row <= table->rowCount(); ++row) texts += table->value(row, 1).toText() + " ";
  EXPECT_EQ(texts, "foo bar baz baw ");
}

}  // namespace
}  // namespace motor

#endif
