#include "motor/tables/text_column.h"

#include <gtest/gtest.h>

namespace motor {
namespace {

TextColumn columnOf(const std::vector<std::string>& texts) {
  TextColumn column;
  for (const std::string& text : texts) column.append(text);
  return column;
}

TEST(TextColumnTest, keepsEachTextOnce) {
  const TextColumn column = columnOf({"a", "b", "a", "b  ", "c", "a", "b", "", "a"});
  EXPECT_EQ(column.dictionary(), (std::vector<std::string>{"a", "b", "c", ""}));
  EXPECT_EQ(column.codes(), (std::vector<TextColumn::Code>{0, 1, 0, 1, 2, 0, 1, 3, 0}));
  EXPECT_EQ(column.text(5), "c");
}

TEST(TextColumnTest, findsRowsAsTheEqualsSignCompares) {
  TextColumn column = columnOf({"Ávila", "Avila", "ÁVILA", "Ñuble"});
  column.appendAbsent();
  column.append("ávila ");
  struct Case {
    const char* text;
    std::vector<RowId> rows;
  };
  const Case cases[] = {
      {"ávila", {1, 3, 6}},
      {"Ávila   ", {1, 3, 6}},
      {"A\u0301vila", {1, 3, 6}},
      {"AVILA", {2}},
      {"ñuble", {4}},
      {" Ávila", {}},
      {"", {}},
  };
  for (const Case& c : cases) EXPECT_EQ(column.rowsEqual(c.text), c.rows) << c.text;
  EXPECT_EQ(column.text(5), "");
  EXPECT_EQ(column.equalityClasses(), (std::vector<TextColumn::Code>{0, 1, 0, 3, 0}));
}

TEST(TextColumnTest, indexesFollowWhatIsAppended) {
  TextColumn column = columnOf({"a"});
  EXPECT_EQ(column.rowsEqual("b").size(), 0U);
  column.append("b");
  EXPECT_EQ(column.rowsEqual("b"), (std::vector<RowId>{2}));
  column.append("b");
  EXPECT_EQ(column.rowsEqual("b"), (std::vector<RowId>{2, 3}));
}

TEST(TextColumnTest, findsTheRowsOfMarkedTexts) {
  TextColumn column = columnOf({"Ávila", "Burgos", "ÁVILA", "Ñuble", "Burgos"});
  column.appendAbsent();
  column.append("Ávila");
  EXPECT_EQ(column.rowsMarked({true, false, false, false}, 9), (std::vector<RowId>{1, 7})) << "not the other spelling";
  EXPECT_EQ(column.rowsMarked({true, true, true, false}, 9), (std::vector<RowId>{1, 2, 3, 5, 7}));
  EXPECT_EQ(column.rowsMarked({true, true, true, false}, 4), std::nullopt);
  EXPECT_EQ(column.rowsMarked({false, false, false, false}, 0), std::vector<RowId>());
  EXPECT_EQ(column.foldedForLike()[2], U"avila");
}

TEST(TextColumnTest, ranksFollowTheSpanishOrder) {
  const TextColumn column = columnOf({"Zamora", "Ávila", "ñandú", "avión", "nube", "oca"});
  EXPECT_EQ(column.ranks(), (std::vector<std::uint32_t>{5, 0, 3, 1, 2, 4}));
}

}  // namespace
}  // namespace motor
