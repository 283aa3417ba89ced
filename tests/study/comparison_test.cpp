#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "csv.h"
#include "map_table.h"
#include "shown_figures.h"
#include "spanish_figure.h"

// What the comparisons themselves see: one that sees nothing finds nothing wrong.
namespace studytest {
namespace {

// How many failures a comparison reports.
template <class Compare>
int failuresOf(const Compare& compare) {
  testing::TestPartResultArray failures;
  const testing::ScopedFakeTestPartResultReporter reporter(
      testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &failures);
  compare();
  return failures.size();
}

TEST(Comparison, TellsWhatAMapHasOtherwise) {
  const FigureKey key{"Provincias", "1999", "", "Lumbría", "Hombres", "Lista reducida", "Neumonía"};
  FigureKey other = key;
  other.name = "Ñorza";
  std::size_t equal = 9;
  const auto failures = [&](const FigureMap& expected, const FigureMap& found) {
    return failuresOf([&] { equal = countEqual(expected, found); });
  };
  EXPECT_EQ(failures({{key, 12.34}}, {{key, 12.34}}), 0);
  EXPECT_EQ(equal, 1U);
  EXPECT_EQ(failures({{key, 12.34}}, {{key, 12.35}}), 2) << "the figure, and the sum of what is wrong";
  EXPECT_EQ(equal, 0U);
  EXPECT_EQ(failures({{key, 12.34}}, {{key, 12.3400001}}), 2);
  EXPECT_EQ(failures({{key, 12.34}, {other, 1}}, {{key, 12.34}}), 2) << "missing";
  EXPECT_EQ(failures({{key, 12.34}}, {{key, 12.34}, {other, 1}}), 2) << "superfluous";
  EXPECT_EQ(equal, 1U);
}

TEST(Comparison, TellsWhatAPageShowsOtherwise) {
  const Place place{"0", "", "Tumores", "Total"};
  const auto failures = [&](const Shown& expected, const std::string& text) {
    return failuresOf([&] { (void)countEqual("page", {{place, expected}}, {{place, text}}); });
  };
  EXPECT_EQ(failures(rate(1234.56, 20), "1.234,6"), 0);
  EXPECT_EQ(failures(rate(1234.56, 19), "*1.234,6"), 0);
  EXPECT_EQ(failures(rate(std::nullopt, 0), "–"), 0);
  EXPECT_EQ(failures(count(1234), "1.234"), 0);
  EXPECT_EQ(failures(rate(1234.56, 20), "*1.234,6"), 2);
  EXPECT_EQ(failures(rate(1234.56, 19), "1.234,6"), 2);
  EXPECT_EQ(failures(rate(1234.56, 20), "1.234,5"), 2);
  EXPECT_EQ(failures(rate(1234.56, 20), "1.234,56"), 2);
  EXPECT_EQ(failures(count(1234), "1.234,0"), 2);
  EXPECT_EQ(failures(count(0), "–"), 2);
  EXPECT_EQ(failures(rate(std::nullopt, 0), "0,0"), 2);
  EXPECT_EQ(failuresOf([&] { (void)countEqual("page", {}, {{place, "1"}}); }), 2) << "superfluous";
  EXPECT_EQ(failuresOf([&] { (void)countEqual("page", {{place, count(1)}}, {}); }), 2) << "missing";
}

TEST(Comparison, ReadsSpanishFigures) {
  EXPECT_EQ(spanishFigure("1.234.567,8").value().value, 1234567.8);
  EXPECT_EQ(spanishFigure("*0,5").value().value, 0.5);
  EXPECT_TRUE(spanishFigure("*0,5").value().isMarked);
  for (const char* text : {"", "1234", "1,234.5", "1.23", "12,", "*", "–", " 1", "1.2345"}) {
    EXPECT_FALSE(spanishFigure(text)) << text;
  }
}

TEST(Comparison, ReadsTablesOfPages) {
  const std::vector<PageTable> tables = tablesIn(
      "<table>\n<caption>C</caption>\n<colgroup span=\"1\"></colgroup>\n<thead>\n"
      "<tr><th rowspan=\"2\">R</th><th rowspan=\"2\">A</th><th colspan=\"2\">G</th></tr>\n"
      "<tr><th>x</th><th>y</th></tr>\n</thead>\n<tbody>\n"
      "<tr class=\"s\"><th colspan=\"4\">List</th></tr>\n"
      "<tr class=\"i\"><th>P &amp; Q</th><td>1</td><td class=\"u\">*2</td><td>3</td></tr>\n</tbody>\n</table>\n");
  ASSERT_EQ(tables.size(), 1U);
  EXPECT_EQ(tables[0].caption, "C");
  EXPECT_EQ(tables[0].columns, (std::vector<std::string>{"A", "G/x", "G/y"}));
  ASSERT_EQ(tables[0].rows.size(), 1U);
  EXPECT_EQ(tables[0].rows[0].section, "List");
  EXPECT_EQ(tables[0].rows[0].kind, "i");
  EXPECT_EQ(tables[0].rows[0].name, "P & Q");
  EXPECT_EQ(tables[0].rows[0].cells, (std::vector<std::string>{"1", "*2", "3"}));
  EXPECT_THROW((void)tablesIn("<table><thead><tr><th>R</th><th>A</th></tr></thead>"
                              "<tr><th>P</th></tr></table>"),
               std::runtime_error);
}

TEST(Comparison, ReadsRowsBetweenCommas) {
  EXPECT_EQ(csvRows("a,b\r\n\"x, y\",z\n"), (std::vector<std::vector<std::string>>{{"a", "b"}, {"x, y", "z"}}));
  EXPECT_THROW((void)csvRows("a,b\nx\n"), std::runtime_error);
  EXPECT_THROW((void)csvRows("a,b\nx,y"), std::runtime_error);
}

}  // namespace
}  // namespace studytest
