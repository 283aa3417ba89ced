#include "page_table.h"

#include <array>
#include <stdexcept>
#include <utility>

#include "sample_study.h"
#include "text/file_text.h"

namespace studytest {

namespace {

struct HtmlCell {
  std::string text;
  std::size_t columns = 1;
  std::size_t rows = 1;
};

struct HtmlRow {
  std::string kind;
  std::vector<HtmlCell> cells;
};

// What stands between `before` and `after`, and moves the text on behind it; empty where there is no such part.
std::string_view cut(std::string_view& text, std::string_view before, std::string_view after) {
  const std::size_t start = text.find(before);
  if (start == text.npos) return {};
  const std::size_t begin = start + before.size();
  const std::size_t end = text.find(after, begin);
  if (end == text.npos) throw std::runtime_error("a tag has no end: " + std::string(before));
  const std::string_view part = text.substr(begin, end - begin);
  text.remove_prefix(end + after.size());
  return part;
}

std::string attribute(std::string_view tag, std::string_view name) {
  std::string_view rest = tag;
  return std::string(cut(rest, " " + std::string(name) + "=\"", "\""));
}

std::size_t span(std::string_view tag, std::string_view name) {
  const std::string number = attribute(tag, name);
  return number.empty() ? 1 : std::stoul(number);
}

std::string plain(std::string_view html) {
  constexpr std::array<std::pair<std::string_view, char>, 5> kReferences{
      {{"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&#39;", '\''}, {"&amp;", '&'}}};
  std::string text(html);
  for (const auto& [reference, letter] : kReferences) {
    for (std::size_t at = 0; (at = text.find(reference, at)) != text.npos; ++at) {
      text.replace(at, reference.size(), 1, letter);
    }
  }
  return text;
}

HtmlRow rowIn(std::string_view html) {
  HtmlRow row;
  std::string_view rest = html;
  row.kind = attribute(cut(rest, "<tr", ">"), "class");
  for (std::size_t at = rest.find("<t"); at != rest.npos; at = rest.find("<t")) {
    const bool isHeader = rest.substr(at).starts_with("<th");
    const std::string_view tag = cut(rest, isHeader ? "<th" : "<td", ">");
    const std::size_t end = rest.find(isHeader ? "</th>" : "</td>");
    row.cells.push_back({plain(rest.substr(0, end)), span(tag, "colspan"), span(tag, "rowspan")});
    rest.remove_prefix(end);
  }
  return row;
}

std::vector<HtmlRow> rowsIn(std::string_view html) {
  std::vector<HtmlRow> rows;
  for (std::size_t at = html.find("<tr"); at != html.npos; at = html.find("<tr")) {
    const std::size_t end = html.find("</tr>");
    rows.push_back(rowIn(html.substr(at, end - at)));
    html.remove_prefix(end + 5);
  }
  return rows;
}

// One or two header rows; a cell that reaches over both has its place in the first.
std::vector<std::string> columnsOf(const std::vector<HtmlRow>& head) {
  std::vector<std::string> columns;
  std::size_t lower = 0;
  for (const HtmlCell& cell : head.at(0).cells) {
    for (std::size_t i = 0; i < cell.columns; ++i) {
      const bool isWhole = cell.rows == head.size();
      columns.push_back(isWhole ? cell.text : cell.text + "/" + head.at(1).cells.at(lower++).text);
    }
  }
  if (head.size() > 1 && lower != head[1].cells.size()) throw std::runtime_error("header rows do not match");
  columns.erase(columns.begin());
  return columns;
}

PageTable tableIn(std::string_view html) {
  PageTable table;
  table.caption = plain(cut(html, "<caption>", "</caption>"));
  table.columns = columnsOf(rowsIn(cut(html, "<thead>", "</thead>")));
  std::string section;
  for (HtmlRow& row : rowsIn(html)) {
    if (row.cells.size() == 1 && row.cells[0].columns == table.columns.size() + 1) {
      section = row.cells[0].text;
      continue;
    }
    if (row.kind == "t") section.clear();
    PageRow& line = table.rows.emplace_back(PageRow{section, row.kind, row.cells.at(0).text, {}});
    for (std::size_t i = 1; i < row.cells.size(); ++i) line.cells.push_back(std::move(row.cells[i].text));
    if (line.cells.size() != table.columns.size()) throw std::runtime_error("a row is not complete: " + line.name);
  }
  return table;
}

}  // namespace

std::vector<PageTable> tablesIn(std::string_view html) {
  std::vector<PageTable> tables;
  for (std::string_view table = cut(html, "<table>", "</table>"); !table.empty();
       table = cut(html, "<table>", "</table>")) {
    tables.push_back(tableIn(table));
  }
  return tables;
}

std::vector<PageTable> readPage(const std::string& path) {
  const std::string folder = scenarios::sampleStudy() + "/Tablas/HTML/";
  const auto html = text::wholeFile(text::toPath(folder + path));
  if (!html) throw std::runtime_error(path + " is missing");
  return tablesIn(*html);
}

std::size_t cellsIn(std::string_view html) {
  std::size_t cells = 0;
  for (const std::string_view tag : {"<th ", "<th>", "<td ", "<td>"}) {
    for (std::size_t at = html.find(tag); at != html.npos; at = html.find(tag, at + 1)) ++cells;
  }
  return cells;
}

}  // namespace studytest
