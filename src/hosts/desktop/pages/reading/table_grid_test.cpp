#include "hosts/desktop/pages/reading/table_grid.h"

#include <gtest/gtest.h>

namespace desktop::pages {
namespace {

// A page's first table as a grid; the page lives as long as this.
struct Read {
  explicit Read(const QString& html, const char* css = "") : tree(treeOf(html)) {
    styles.add(QString::fromUtf8(css));
    const Node* node = &tree.body();
    while (node->tag != Tag::table) node = node->children.front().get();
    style = styles.styleOf(*node, {});
    grid = gridOf(*node, style, styles, places);
  }
  [[nodiscard]] const GridCell& cell(std::size_t row, std::size_t index) const { return grid.rows[row].cells[index]; }

  PageTree tree;
  PageStyles styles;
  PageStyle style;
  std::size_t places = kMostPlaces;
  TableGrid grid;
};

// Rows as "column+columns x rows" of their cells.
std::string shown(const TableGrid& grid) {
  std::string all;
  for (const GridRow& row : grid.rows) {
    all += row.isHeading ? "H" : "|";
    for (const GridCell& cell : row.cells) {
      all += ' ' + std::to_string(cell.column) + '+' + std::to_string(cell.columns) + 'x' + std::to_string(cell.rows);
    }
  }
  return all;
}

struct Case {
  const char* html;
  const char* grid;
};

TEST(TableGrid, PutsCellsIntoTheirColumns) {
  for (const Case& each : {
           Case{"<table></table>", ""},
           Case{"<table><td>a<td>b<tr><td>c</table>", "| 0+1x1 1+1x1| 0+1x1"},
           Case{"<table><td rowspan=2>a<td colspan=2>b<tr><td>c<td>d</table>", "| 0+1x2 1+2x1| 1+1x1 2+1x1"},
           Case{"<table><td>a<td rowspan=2>b<tr><td colspan=3>c</table>", "| 0+1x1 1+1x2| 0+1x1"},
           Case{"<table><td rowspan=9>a<tr><td>b</table>", "| 0+1x2| 1+1x1"},
           Case{"<table><td rowspan=0>a<tr><td>b<tr><td>c</table>", "| 0+1x3| 1+1x1| 1+1x1"},
           Case{"<table><td rowspan=2>a<tr><tr><td>b</table>", "| 0+1x2|| 0+1x1"},
           Case{"<table><tr><tr><td>b<tr></table>", "| 0+1x1"},
           Case{"<table><tfoot><td>f<tbody><td>b<thead><td>h</table>", "H 0+1x1| 0+1x1| 0+1x1"},
           Case{"<table><thead><td rowspan=3>h<tbody><td>b</table>", "H 0+1x1| 0+1x1"},
           Case{"<table><tr style='display:none'><td>a<tr><td style='display:none'>b<td>c</table>", "| 0+1x1"},
           Case{"<table><td colspan=-1>a<td colspan=x>b<td colspan=0>c</table>", "| 0+1x1 1+1x1 2+1x1"},
       }) {
    EXPECT_EQ(shown(Read(QString::fromLatin1(each.html)).grid), each.grid) << each.html;
  }
}

TEST(TableGrid, IsNeverLargerThanCanBeShown) {
  const Read wide(QStringLiteral("<table><td colspan=999999>a<td>b</table>"));
  EXPECT_EQ(wide.grid.columns, 512U);
  EXPECT_TRUE(wide.grid.isCut);
  const Read high(QStringLiteral("<table>") + QStringLiteral("<tr><td colspan=1000>a").repeated(20000));
  EXPECT_LE(high.grid.columns * high.grid.rows.size(), kMostPlaces);
  EXPECT_EQ(high.places, kMostPlaces - high.grid.columns * high.grid.rows.size());
}

TEST(TableGrid, ColumnsHaveTheWidthsOfTheirElementsOrCells) {
  const Read columns(
      QStringLiteral("<table><col width=64><col span=2 width='20%'><td width=10>a<td>b<td>c<td>d</table>"));
  EXPECT_EQ(columns.grid.widths[0].value, 64);
  EXPECT_EQ(columns.grid.widths[2].unit, Length::Unit::percent);
  EXPECT_EQ(columns.grid.widths[3].unit, Length::Unit::automatic);
  const Read cells(
      QStringLiteral("<table width=500 cellpadding=3><td colspan=2 width=90>a<tr><td width=40>b<td>c</table>"));
  EXPECT_EQ(cells.grid.widths[0].value, 46);
  EXPECT_EQ(cells.grid.widths[1].unit, Length::Unit::automatic);
}

TEST(TableGrid, CellsTakeTheGroundOfWhatTheyStandIn) {
  const Read read(
      QStringLiteral("<table><col bgcolor=blue><tr bgcolor=red><td bgcolor=lime>a<td>b<tr><td>c<td>d</table>"));
  EXPECT_EQ(read.cell(0, 0).style.background, QColor(0, 255, 0));
  EXPECT_EQ(read.cell(0, 1).style.background, QColor(255, 0, 0));
  EXPECT_EQ(read.cell(1, 0).style.background, QColor(0, 0, 255));
  EXPECT_FALSE(read.cell(1, 1).style.background.isValid());
}

TEST(TableGrid, AHighRowIsHeldByItsShortestCell) {
  const Read read(QStringLiteral("<table><tr height=60><td>un texto<td>x<td height=80>otro</table>"));
  EXPECT_EQ(read.cell(0, 0).style.height, 0);
  EXPECT_EQ(read.cell(0, 1).style.height, 80);
  EXPECT_EQ(read.cell(0, 2).style.height, 0);
}

TEST(TableGrid, HeadingsThatMayBeOnlySoWideMakeTheColumnSo) {
  const char* css = "th{min-width:50px;max-width:80px} td,th{padding:0}";
  const QString head = QStringLiteral("<table><thead><tr><th>Una cabecera muy larga</th></tr></thead>");
  EXPECT_EQ(Read(head + QStringLiteral("<tr><td>1,5"), css).grid.widths[0].value, 80);
  EXPECT_EQ(Read(head + QStringLiteral("<tr><td>123456789012345678"), css).grid.widths[0].unit,
            Length::Unit::automatic);
  EXPECT_EQ(Read(QStringLiteral("<table><thead><tr><th>A</th></tr></thead><tr><td>1"), css).grid.widths[0].value, 50);
  const Read rows(QStringLiteral("<table><tr><th>Una fila de nombre largo<td>1"), css);
  EXPECT_EQ(rows.grid.widths[0].unit, Length::Unit::automatic);
  EXPECT_EQ(rows.grid.least[0], 50);
}

const Border kLine{1, LineStyle::solid, QColor(255, 0, 0)};

TEST(SharedBorders, AreDrawnOnce) {
  Read read(QStringLiteral("<table><td>a<td>b<tr><td>c<td>d"),
            "table{border-collapse:collapse} td{border:1px solid red}");
  shareBorders(read.grid, read.style);
  EXPECT_EQ(read.cell(0, 0).style.border, (Sides<Border>{kLine, kLine, kLine, kLine}));
  EXPECT_EQ(read.cell(0, 1).style.border, (Sides<Border>{kLine, kLine, kLine, Border()}));
  EXPECT_EQ(read.cell(1, 1).style.border, (Sides<Border>{Border(), kLine, kLine, Border()}));
}

TEST(SharedBorders, TheWiderOneWinsFromEitherSide) {
  Read read(QStringLiteral("<table><td>a<td style='border-left:4px solid blue'>b"),
            "table{border-collapse:collapse} td{border:1px solid red}");
  shareBorders(read.grid, read.style);
  EXPECT_EQ(read.cell(0, 0).style.border[kRight], (Border{4, LineStyle::solid, QColor(0, 0, 255)}));
  EXPECT_FALSE(read.cell(0, 1).style.border[kLeft].isSeen());
}

TEST(SharedBorders, LinesBesideLargeCellsAreDrawnByTheSmallOnes) {
  Read read(QStringLiteral("<table><td rowspan=2>a<td>b<tr><td style='border-left:1px solid red'>c"),
            "table{border-collapse:collapse}");
  shareBorders(read.grid, read.style);
  EXPECT_FALSE(read.cell(0, 0).style.border[kRight].isSeen());
  EXPECT_EQ(read.cell(1, 0).style.border[kLeft], kLine);
}

TEST(SharedBorders, TheTablesOwnGoToTheCellsAtItsEdge) {
  Read read(QStringLiteral("<table style='border:1px solid red'><td>a<td>b<tr><td colspan=2>c"));
  shareBorders(read.grid, read.style);
  EXPECT_EQ(read.cell(0, 0).style.border, (Sides<Border>{kLine, Border(), Border(), kLine}));
  EXPECT_EQ(read.cell(0, 1).style.border, (Sides<Border>{kLine, kLine, Border(), Border()}));
  EXPECT_EQ(read.cell(1, 0).style.border, (Sides<Border>{Border(), kLine, kLine, kLine}));
}

}  // namespace
}  // namespace desktop::pages
