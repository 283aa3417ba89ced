#include "study/reports/sheet_layout.h"

#include <gtest/gtest.h>

#include <numeric>

#include "study/reports/test_pages.h"

namespace study::reports {
namespace {

using pages::Mark;
using pages::RowKind;

pages::Sheet sheet(std::size_t columns, const std::string& figure) {
  pages::Sheet sheet{"", "Causa", {}, {}};
  for (std::size_t i = 0; i < columns; ++i) sheet.columns.push_back({i < 2 ? "Tasa estandarizada" : "", "Hombres"});
  const std::vector<pages::Cell> cells(columns, {figure, Mark::unstable});
  sheet.rows = {{RowKind::figures, "Enfermedades crónicas de las vías respiratorias inferiores excepto asma", cells},
                {RowKind::section, "Sección", {}},
                {RowKind::total, "Todas", cells}};
  return sheet;
}

TEST(SheetLayout, FitsCellsToColumnsAndColumnsToThePage) {
  for (const std::size_t columns : {1U, 3U, 7U, 9U}) {
    const pages::Sheet table = sheet(columns, "1.234.567,8");
    const SheetLayout layout(table, kContentWidth);
    const std::vector<double>& widths = layout.widths();
    ASSERT_EQ(widths.size(), columns + 1);
    EXPECT_NEAR(std::accumulate(widths.begin(), widths.end(), 0.0), kContentWidth, 1e-6) << columns;
    for (std::size_t i = 1; i < widths.size(); ++i) {
      EXPECT_GT(widths[i], textWidth("*1.234.567,8", {layout.typeSize(), true})) << columns;
    }
    Page page;
    layout.paintHeader(page, kLeft, kTop);
    double top = kTop + layout.headerHeight();
    for (std::size_t row = 0; row < table.rows.size(); top += layout.rowHeight(row++)) {
      layout.paintRow(page, kLeft, top, row);
    }
    expectWithin(page, {kLeft, kTop, kContentWidth, top - kTop});
    expectLegible(page);
  }
}

TEST(SheetLayout, WrapsNamesAndMakesTheirRowsHigher) {
  const pages::Sheet table = sheet(6, "1.234,5");
  const SheetLayout layout(table, kContentWidth);
  EXPECT_GT(layout.rowHeight(0), layout.rowHeight(2) * 1.5);
}

TEST(SheetLayout, PrintsMarks) {
  EXPECT_EQ(printed({"12,3"}), "12,3");
  EXPECT_EQ(printed({"12,3", Mark::unstable}), "*12,3");
  EXPECT_EQ(printed({"", Mark::missing}), "–");
  EXPECT_EQ(printed({"", Mark::hidden}), "(s)");
}

}  // namespace
}  // namespace study::reports
