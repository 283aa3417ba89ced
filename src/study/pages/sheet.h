#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <vector>

// A table of figures as a page shows it.
namespace study::pages {

// Why a cell is not a plain figure.
enum class Mark { none, unstable, missing, hidden };

// What stands in place of a figure, or before an unstable one: figures of a column stay in line.
inline constexpr const char* kUnstableMark = "*";
inline constexpr const char* kMissingMark = "–";
inline constexpr const char* kHiddenMark = "(s)";

struct Cell {
  std::string text;  // the figure alone
  Mark mark = Mark::none;
};

[[nodiscard]] Cell countCell(long number);
[[nodiscard]] Cell decimalCell(double number);  // with one decimal
[[nodiscard]] Cell missingCell();
[[nodiscard]] Cell hiddenCell();

// A rate with one decimal, marked where it rests on too few deaths. None: missing.
[[nodiscard]] Cell rateCell(std::optional<double> rate, long deaths);

struct Column {
  std::string group;  // a header over this column and its neighbours of the same group; empty: none
  std::string name;
};

enum class RowKind {
  figures,
  total,    // set off from the rows above
  section,  // a header of the rows below, without cells
  group,    // the whole of the parts below, which begins a group of rows
  part,     // of the group above
};

struct Row {
  RowKind kind = RowKind::figures;
  std::string name;
  std::vector<Cell> cells;  // one for each column; none for a section
};

struct Sheet {
  std::string caption;
  std::string rowHeader;  // what the rows are
  std::vector<Column> columns;
  std::vector<Row> rows;
  std::size_t columnsPerBlock = 10;  // a multiple of the columns of a group
};

// As HTML tables one below the other, each with at most `columnsPerBlock` of the columns, numbered in their captions
// where there are several.
[[nodiscard]] std::string html(const Sheet& sheet);

// The marks that a reader of the table needs to be told of.
[[nodiscard]] std::set<Mark> marksOf(const Sheet& sheet);

}  // namespace study::pages
