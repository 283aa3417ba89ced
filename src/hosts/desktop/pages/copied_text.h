#pragma once

#include <QString>

class QTextCursor;

namespace desktop::pages {

// What is selected, as text that a spreadsheet takes apart again: the cells of a table with tabs between, its rows and
// all other paragraphs in lines of their own. A cell over several columns or rows is followed by empty ones, so that
// columns stay in line; lines within a cell are joined.
[[nodiscard]] QString copiedText(const QTextCursor& selection);

}  // namespace desktop::pages
