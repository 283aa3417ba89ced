#include <algorithm>
#include <array>

#include "hosts/desktop/pages/reading/table_grid.h"

namespace desktop::pages {
namespace {

// A line between two places of a grid, or along its edge.
struct Line {
  Border border;
  bool isDrawn = false;
};

void win(Border& line, const Border& other) {
  if (other.isSeen() && (!line.isSeen() || other.pixels > line.pixels)) line = other;
}

// All lines of a grid. Those above a row are numbered by the row, those left of a column by the column.
class Lines {
 public:
  Lines(std::size_t rows, std::size_t columns)
      : columns_(columns), above_((rows + 1) * columns), leftOf_(rows * (columns + 1)) {}

  // The lines along a cell's side.
  [[nodiscard]] std::vector<Line*> along(const GridCell& cell, Side side) {
    std::vector<Line*> lines;
    if (side == kTop || side == kBottom) {
      const std::size_t row = cell.row + (side == kBottom ? cell.rows : 0);
      for (std::size_t i = 0; i < cell.columns; ++i) lines.push_back(&above_[row * columns_ + cell.column + i]);
    } else {
      const std::size_t column = cell.column + (side == kRight ? cell.columns : 0);
      for (std::size_t i = 0; i < cell.rows; ++i) lines.push_back(&leftOf_[(cell.row + i) * (columns_ + 1) + column]);
    }
    return lines;
  }

 private:
  std::size_t columns_;
  std::vector<Line> above_;
  std::vector<Line> leftOf_;
};

// Draws the cell's side where its lines are all alike and nobody has drawn them.
void draw(GridCell& cell, Side side, Lines& lines) {
  const std::vector<Line*> along = lines.along(cell, side);
  const Border first = along.front()->border;
  const bool isMine =
      std::ranges::all_of(along, [&](const Line* line) { return !line->isDrawn && line->border == first; });
  cell.style.border[side] = isMine ? first : Border();
  if (!isMine) return;
  for (Line* line : along) line->isDrawn = true;
}

bool isAtEdge(const GridCell& cell, Side side, const TableGrid& grid) {
  switch (side) {
    case kTop:
      return cell.row == 0;
    case kLeft:
      return cell.column == 0;
    case kBottom:
      return cell.row + cell.rows == grid.rows.size();
    case kRight:
      return cell.column + cell.columns == grid.columns;
  }
  return false;
}

constexpr std::array kAllSides{kTop, kRight, kBottom, kLeft};

template <class Action>
void forEachSide(TableGrid& grid, Action action) {
  for (GridRow& row : grid.rows) {
    for (GridCell& cell : row.cells) {
      for (const Side side : kAllSides) action(cell, side);
    }
  }
}

}  // namespace

void shareBorders(TableGrid& grid, const PageStyle& table) {
  forEachSide(grid, [&](GridCell& cell, Side side) {
    for (Border& border : cell.style.border) {
      if (border.isSeen() && !border.color.isValid()) border.color = cell.style.text.color;
    }
    if (isAtEdge(cell, side, grid)) win(cell.style.border[side], table.border[side]);
  });
  if (!table.collapsesBorders) return;
  Lines lines(grid.rows.size(), grid.columns);
  forEachSide(grid, [&](GridCell& cell, Side side) {
    for (Line* line : lines.along(cell, side)) win(line->border, cell.style.border[side]);
  });
  for (const bool nearSides : {false, true}) {
    forEachSide(grid, [&](GridCell& cell, Side side) {
      if ((side == kTop || side == kLeft) == nearSides) draw(cell, side, lines);
    });
  }
}

}  // namespace desktop::pages
