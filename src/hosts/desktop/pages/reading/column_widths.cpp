#include "hosts/desktop/pages/reading/column_widths.h"

#include <algorithm>

#include "hosts/desktop/pages/reading/text_measure.h"

namespace desktop::pages {
namespace {

constexpr double kNarrowFont = 0.85;  // of the usual width

struct Wanted {
  double least = 0;     // by a cell's least width
  double headings = 0;  // as wide as they may be
  double figures = 0;
  bool breaks = false;  // a heading is longer than it may be wide
};

double around(const PageStyle& style) { return style.padding[kLeft] + style.padding[kRight]; }

void take(const GridCell& cell, bool isHeading, Wanted& wanted) {
  const PageStyle& style = cell.style;
  double width = lineWidth(*cell.node, style.text);
  if (style.minWidth > 0) wanted.least = std::max(wanted.least, style.minWidth + around(style));
  if (!isHeading) {
    wanted.figures = std::max(wanted.figures, width + around(style));
    return;
  }
  if (style.maxWidth > 0 && width > style.maxWidth) {
    width = style.maxWidth;
    wanted.breaks = true;
  }
  wanted.headings = std::max(wanted.headings, width + around(style));
}

// The pixels of a cell's columns together; 0 where one of them has no width in pixels.
double widthOver(const GridCell& cell, const TableGrid& grid) {
  double whole = 0;
  for (std::size_t i = 0; i < cell.columns; ++i) {
    const Length& width = grid.widths[cell.column + i];
    if (!width.isPixels()) return 0;
    whole += width.value;
  }
  return whole;
}

// The toolkit presses the columns below a line that may not break apart, each by its share, even where the line has
// room on all of them together.
void letFittingLinesBreak(TableGrid& grid) {
  for (GridRow& row : grid.rows) {
    for (GridCell& cell : row.cells) {
      if (cell.columns == 1 || cell.style.whiteSpace != WhiteSpace::nowrap) continue;
      const double narrow = kNarrowFont * lineWidth(*cell.node, cell.style.text);
      if (narrow <= widthOver(cell, grid)) cell.style.whiteSpace = WhiteSpace::normal;
    }
  }
}

}  // namespace

void settleWidths(TableGrid& grid) {
  std::vector<Wanted> wanted(grid.columns);
  for (const GridRow& row : grid.rows) {
    for (const GridCell& cell : row.cells) {
      const bool isNarrowed = cell.style.minWidth > 0 || cell.style.maxWidth > 0;
      if (cell.columns == 1 && (isNarrowed || !row.isHeading)) take(cell, row.isHeading, wanted[cell.column]);
    }
  }
  grid.least.assign(grid.columns, 0);
  for (std::size_t column = 0; column < grid.columns; ++column) {
    Length& width = grid.widths[column];
    const Wanted& each = wanted[column];
    if (width.unit != Length::Unit::automatic) continue;
    const bool figuresFit = each.figures <= each.headings;
    const double natural = std::max(each.headings, each.figures);
    if (each.breaks && figuresFit) {
      width = {Length::Unit::pixels, std::max(each.least, each.headings)};
    } else if (each.least > natural) {
      width = {Length::Unit::pixels, each.least};
    } else {
      grid.least[column] = each.least;
    }
  }
  letFittingLinesBreak(grid);
}

}  // namespace desktop::pages
