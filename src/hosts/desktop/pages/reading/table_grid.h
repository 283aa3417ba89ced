#pragma once

#include <vector>

#include "hosts/desktop/pages/reading/page_styles.h"

namespace desktop::pages {

// A cell of a table, where it stands and how it looks.
struct GridCell {
  const Node* node = nullptr;
  PageStyle style;  // its background: its own, or that of its row, its section or its column
  std::size_t row = 0;
  std::size_t column = 0;
  std::size_t rows = 1;  // that it spans
  std::size_t columns = 1;
};

struct GridRow {
  std::vector<GridCell> cells;
  bool isHeading = false;  // of a heading section that the table begins with
};

// The cells of a table, each in its rows and columns. Cells never overlap; what hangs over the end of its section or of
// the columns is cut off.
struct TableGrid {
  std::size_t columns = 0;
  std::vector<GridRow> rows;
  std::vector<Length> widths;  // of the columns; automatic where nothing is said
  std::vector<double> least;   // pixels below which a column of automatic width may not be pressed; 0: any
  std::vector<const Node*> captions;
  bool isCut = false;  // the table has more cells than are shown
};

// Rows times columns of all tables of a page: about how many the toolkit lays out in seconds.
inline constexpr std::size_t kMostPlaces = 400'000;

// `style` is the table's own. `places` is what the page has left of them; the table's are taken off.
[[nodiscard]] TableGrid gridOf(const Node& table, const PageStyle& style, PageStyles& styles, std::size_t& places);

// Turns borders that neighbours share into borders of one of them, the wider one winning, and hands the table's own
// borders to the cells along its edges. For tables whose borders collapse; in others only the table's own are handed
// on.
void shareBorders(TableGrid& grid, const PageStyle& table);

}  // namespace desktop::pages
