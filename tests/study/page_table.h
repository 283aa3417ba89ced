#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace studytest {

// A row of a table in a page.
struct PageRow {
  std::string section;  // the text of the row over all columns before it, if any
  std::string kind;     // the row's class
  std::string name;
  std::vector<std::string> cells;
};

// A table of a page. Columns have the texts above them, upper before lower with a slash between; the first column,
// which names the rows, is left out.
struct PageTable {
  std::string caption;
  std::vector<std::string> columns;
  std::vector<PageRow> rows;
};

// The tables of a page. Throws std::runtime_error where a row has not as many cells as there are columns.
[[nodiscard]] std::vector<PageTable> tablesIn(std::string_view html);

// Those of a page below the sample's Tablas/HTML. Throws std::runtime_error.
[[nodiscard]] std::vector<PageTable> readPage(const std::string& path);

// How many header and figure cells a page has.
[[nodiscard]] std::size_t cellsIn(std::string_view html);

}  // namespace studytest
