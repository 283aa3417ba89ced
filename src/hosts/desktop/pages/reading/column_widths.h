#pragma once

#include "hosts/desktop/pages/reading/table_grid.h"

namespace desktop::pages {

// The toolkit knows no least and largest widths of cells. They are made fixed widths of columns where it matters: a
// column whose headings ask to be broken, since they are longer than they may be wide, becomes as wide as they may be
// or as its figures need; one whose texts are narrower than they should be becomes that wide. Columns that have a width
// keep it. For the others the least width is noted. Lines over several columns that fit on them may break, which keeps
// them from making the columns wider.
void settleWidths(TableGrid& grid);

}  // namespace desktop::pages
