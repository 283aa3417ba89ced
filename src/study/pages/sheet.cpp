#include "study/pages/sheet.h"

#include <algorithm>

#include "study/methods/figure.h"
#include "study/pages/html.h"
#include "text/spanish_number.h"

namespace study::pages {

namespace {

// Some of a sheet's columns, from `first` to before `end`.
struct Block {
  std::size_t first = 0;
  std::size_t end = 0;
};

std::string quoted(std::string_view name, std::size_t number) {
  return std::string(name) + "=\"" + std::to_string(number) + "\"";
}

// The end of the run of columns of one group that begins at `first`; a column without a group stands alone.
std::size_t groupEnd(const Sheet& sheet, std::size_t first, std::size_t end) {
  std::size_t next = first + 1;
  if (sheet.columns[first].group.empty()) return next;
  while (next < end && sheet.columns[next].group == sheet.columns[first].group) ++next;
  return next;
}

bool hasGroups(const Sheet& sheet, Block block) {
  for (std::size_t column = block.first; column < block.end; ++column) {
    if (!sheet.columns[column].group.empty()) return true;
  }
  return false;
}

std::string columnGroups(const Sheet& sheet, Block block) {
  std::string html = "<colgroup span=\"1\"></colgroup>";
  for (std::size_t column = block.first; column < block.end;) {
    const std::size_t next = groupEnd(sheet, column, block.end);
    html += "<colgroup " + quoted("span", next - column) + "></colgroup>";
    column = next;
  }
  return html + "\n";
}

std::string columnHeader(const std::string& name, std::string_view attributes = {}) {
  return element("th", name, "scope=\"col\" class=\"c\"" + std::string(attributes));
}

std::string headers(const Sheet& sheet, Block block) {
  const bool isDouble = hasGroups(sheet, block);
  const std::string_view rows = isDouble ? " rowspan=\"2\"" : "";
  std::string upper = element("th", sheet.rowHeader, "scope=\"col\" class=\"r\"" + std::string(rows));
  std::string lower;
  for (std::size_t column = block.first; column < block.end;) {
    const std::size_t next = groupEnd(sheet, column, block.end);
    const std::string& group = sheet.columns[column].group;
    if (group.empty()) {
      upper += columnHeader(sheet.columns[column].name, rows);
    } else {
      upper += element("th", group, "scope=\"colgroup\" class=\"g\" " + quoted("colspan", next - column));
      for (std::size_t i = column; i < next; ++i) lower += columnHeader(sheet.columns[i].name);
    }
    column = next;
  }
  std::string html = "<thead>\n<tr>" + upper + "</tr>\n";
  if (isDouble) html += "<tr>" + lower + "</tr>\n";
  return html + "</thead>\n";
}

std::string cellHtml(const Cell& cell) {
  switch (cell.mark) {
    case Mark::unstable:
      return element("td", kUnstableMark + cell.text, "class=\"u\"");
    case Mark::missing:
      return element("td", kMissingMark, "class=\"m\"");
    case Mark::hidden:
      return element("td", kHiddenMark, "class=\"m\"");
    case Mark::none:
      break;
  }
  return element("td", cell.text);
}

bool startsRowGroup(RowKind kind) { return kind != RowKind::figures && kind != RowKind::part; }

std::string_view rowTag(RowKind kind) {
  switch (kind) {
    case RowKind::figures:
      return "<tr>";
    case RowKind::part:
      return "<tr class=\"i\">";
    case RowKind::section:
      return "<tr class=\"s\">";
    case RowKind::total:
    case RowKind::group:
      break;
  }
  return "<tr class=\"t\">";
}

std::string rowHtml(const Row& row, Block block) {
  if (row.kind == RowKind::section) {
    const std::string span = quoted("colspan", block.end - block.first + 1);
    return std::string(rowTag(row.kind)) + element("th", row.name, "scope=\"rowgroup\" class=\"r\" " + span) +
           "</tr>\n";
  }
  std::string html(rowTag(row.kind));
  html += element("th", row.name, "scope=\"row\" class=\"r\"");
  for (std::size_t column = block.first; column < block.end; ++column) html += cellHtml(row.cells[column]);
  return html + "</tr>\n";
}

std::string blockHtml(const Sheet& sheet, Block block, const std::string& caption) {
  std::string html = "<table>\n" + element("caption", caption) + "\n";
  html += columnGroups(sheet, block) + headers(sheet, block) + "<tbody>\n";
  for (std::size_t i = 0; i < sheet.rows.size(); ++i) {
    if (i > 0 && startsRowGroup(sheet.rows[i].kind)) html += "</tbody>\n<tbody>\n";
    html += rowHtml(sheet.rows[i], block);
  }
  return html + "</tbody>\n</table>\n";
}

}  // namespace

Cell countCell(long number) { return {text::spanishNumber(static_cast<double>(number), 0)}; }

Cell decimalCell(double number) { return {text::spanishNumber(number, 1)}; }

Cell missingCell() { return {"", Mark::missing}; }

Cell hiddenCell() { return {"", Mark::hidden}; }

Cell rateCell(std::optional<double> rate, long deaths) {
  if (!rate) return missingCell();
  return {text::spanishNumber(*rate, 1), deaths < kStableDeaths ? Mark::unstable : Mark::none};
}

std::string html(const Sheet& sheet) {
  const std::size_t columns = sheet.columns.size();
  const std::size_t blocks = (columns + sheet.columnsPerBlock - 1) / sheet.columnsPerBlock;
  std::string html;
  for (std::size_t i = 0; i < blocks; ++i) {
    const std::size_t first = i * sheet.columnsPerBlock;
    std::string caption = sheet.caption;
    if (blocks > 1) caption += " (" + std::to_string(i + 1) + " de " + std::to_string(blocks) + ")";
    html += blockHtml(sheet, {first, std::min(first + sheet.columnsPerBlock, columns)}, caption);
  }
  return html;
}

std::set<Mark> marksOf(const Sheet& sheet) {
  std::set<Mark> marks;
  for (const Row& row : sheet.rows) {
    for (const Cell& cell : row.cells) marks.insert(cell.mark);
  }
  marks.erase(Mark::none);
  return marks;
}

}  // namespace study::pages
