#include "study/input/csv_records.h"

#include <gtest/gtest.h>

#include "study/input/input_text.h"

namespace study {
namespace {

using Row = std::vector<std::string>;
using State = CsvRecords::State;

struct Read {
  std::vector<Row> rows;
  std::vector<std::size_t> lines;
  State last = State::end;
};

Read readAll(const std::string& text, char separator = ',') {
  Read read;
  CsvRecords records(text, separator);
  while (true) {
    const State state = records.next();
    if (state == State::end || state == State::unclosedQuote) {
      if (state == State::unclosedQuote) read.lines.push_back(records.line());
      read.last = state;
      return read;
    }
    read.rows.emplace_back(records.fields().begin(), records.fields().end());
    read.lines.push_back(records.line());
  }
}

TEST(CsvRecords, ReadsFieldsAndQuotes) {
  const struct {
    const char* text;
    std::vector<Row> rows;
  } cases[] = {
      {"", {}},
      {"\n\r\n\r", {}},
      {"a,b\nc,d\n", {{"a", "b"}, {"c", "d"}}},
      {"a,b\r\nc,d", {{"a", "b"}, {"c", "d"}}},
      {"a,b\rc,d\r", {{"a", "b"}, {"c", "d"}}},
      {"a,,\n,", {{"a", "", ""}, {"", ""}}},
      {"\"a,b\",c", {{"a,b", "c"}}},
      {"\"a \"\"b\"\"\",\"\"", {{"a \"b\"", ""}}},
      {"\"\"\"\"", {{"\""}}},
      {"a\"b,c", {{"a\"b", "c"}}},
      {"\"a\nb\",c\nd,e", {{"a\nb", "c"}, {"d", "e"}}},
      {"a,\"b\"x,c", {{"a", "b", "c"}}},
  };
  for (const auto& c : cases) {
    const Read read = readAll(c.text);
    EXPECT_EQ(read.rows, c.rows) << c.text;
    EXPECT_EQ(read.last, State::end) << c.text;
  }
  EXPECT_EQ(readAll("a;b,c", ';').rows, (std::vector<Row>{{"a", "b,c"}}));
}

TEST(CsvRecords, KnowsLines) {
  EXPECT_EQ(readAll("a\n\n\"b\r\nc\"\r\nd\re\n").lines, (std::vector<std::size_t>{1, 3, 5, 6}));
  const Read open = readAll("a\nb,\"c\nd");
  EXPECT_EQ(open.last, State::unclosedQuote);
  EXPECT_EQ(open.lines, (std::vector<std::size_t>{1, 2}));
  CsvRecords misplaced("a\n\"b\" c,d\ne", ',');
  EXPECT_EQ(misplaced.next(), State::record);
  EXPECT_EQ(misplaced.next(), State::misplacedQuote);
  EXPECT_EQ(misplaced.next(), State::record);
}

TEST(CsvRecords, FindsTheSeparator) {
  EXPECT_EQ(separatorOf("a,b\nc;d"), ',');
  EXPECT_EQ(separatorOf("a;b"), ';');
  EXPECT_EQ(separatorOf("\"a;b\",c"), ',');
  EXPECT_EQ(separatorOf(""), ',');
}

TEST(InputText, FindsWhatIsNoUtf8) {
  const struct {
    std::string bytes;
    std::optional<std::size_t> malformed;
  } cases[] = {
      {"Año", std::nullopt},   {"€ y 😀", std::nullopt},
      {"A\xF1o", 1},           {"\xC3", 0},
      {"\xC0\xAF", 0},         {"\xE0\x9F\xBF", 0},
      {"\xED\xA0\x80", 0},     {"x\xF4\x90\x80\x80", 1},
      {"\xF0\x8F\xBF\xBF", 0}, {"\xEF\xBF\xBD", std::nullopt},
      {"\xE2\x82", 0},         {"\x80", 0},
  };
  for (const auto& c : cases) EXPECT_EQ(firstMalformed(c.bytes), c.malformed) << c.bytes;
}

TEST(InputText, TrimsBlanks) {
  EXPECT_EQ(trimmed(" \ta b\t "), "a b");
  EXPECT_EQ(trimmed("  "), "");
}

}  // namespace
}  // namespace study
