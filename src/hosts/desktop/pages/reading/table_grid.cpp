#include "hosts/desktop/pages/reading/table_grid.h"

#include <algorithm>

#include "hosts/desktop/pages/reading/column_widths.h"
#include "hosts/desktop/pages/reading/text_measure.h"

namespace desktop::pages {
namespace {

constexpr std::size_t kMostColumns = 512;
constexpr std::size_t kColumnsOfAnyTable = 16;

// A row as the page has it.
struct Source {
  const Node* node = nullptr;
  PageStyle style;
  QColor background;
  int order = 1;  // headings 0, feet 2
  int section = 0;
};

struct Column {
  Length width;
  QColor background;
};

std::size_t count(const Node& node, const char* attribute, std::size_t otherwise) {
  bool isNumber = false;
  const uint number = node.attribute(QLatin1String(attribute)).trimmed().toUInt(&isNumber);
  return isNumber ? number : otherwise;
}

class GridBuilder {
 public:
  GridBuilder(const PageStyle& style, PageStyles& styles) : style_(style), styles_(styles) {}

  TableGrid build(const Node& table, std::size_t places) {
    for (const auto& child : table.children) take(*child);
    std::ranges::stable_sort(sources_, {}, &Source::order);
    mostColumns_ = std::clamp(places / std::max<std::size_t>(sources_.size(), 1), kColumnsOfAnyTable, kMostColumns);
    for (std::size_t i = 0; i < sources_.size(); ++i) place(sources_[i], rowsLeft(i));
    for (std::size_t i = 0; i < std::min(columns_.size(), grid_.columns); ++i) {
      if (columns_[i].width.value > 0) widthOf(i) = columns_[i].width;
    }
    grid_.widths.resize(grid_.columns);
    return std::move(grid_);
  }

 private:
  void take(const Node& child) {
    switch (child.tag) {
      case Tag::caption:
        grid_.captions.push_back(&child);
        break;
      case Tag::col:
        takeColumn(child, plainStyle());
        break;
      case Tag::colgroup:
        takeColumnGroup(child);
        break;
      case Tag::tr:
        takeRow(child, style_, QColor(), 1);
        break;
      case Tag::thead:
      case Tag::tbody:
      case Tag::tfoot:
        takeSection(child);
        break;
      default:
        break;
    }
  }

  // The table's style without its own box.
  [[nodiscard]] PageStyle plainStyle() const { return style_.handedOn(); }

  void takeColumn(const Node& node, const PageStyle& outer) {
    const PageStyle style = styles_.styleOf(node, outer);
    const std::size_t columns = std::clamp<std::size_t>(count(node, "span", 1), 1, kMostColumns);
    const QColor background = style.background.isValid() ? style.background : outer.background;
    const Length width = style.width.unit == Length::Unit::automatic ? outer.width : style.width;
    for (std::size_t i = 0; i < columns && columns_.size() < kMostColumns; ++i) columns_.push_back({width, background});
  }

  void takeColumnGroup(const Node& node) {
    if (node.children.empty()) return takeColumn(node, plainStyle());
    const PageStyle style = styles_.styleOf(node, plainStyle());
    for (const auto& child : node.children) takeColumn(*child, style);
  }

  void takeSection(const Node& node) {
    const PageStyle style = styles_.styleOf(node, style_);
    if (style.isHidden) return;
    ++section_;
    const int order = node.tag == Tag::thead ? 0 : (node.tag == Tag::tfoot ? 2 : 1);
    for (const auto& row : node.children) takeRow(*row, style, style.background, order);
    ++section_;
  }

  void takeRow(const Node& node, const PageStyle& outer, const QColor& background, int order) {
    PageStyle style = styles_.styleOf(node, outer);
    if (style.isHidden) return;
    const QColor own = style.background.isValid() ? style.background : background;
    sources_.push_back({&node, std::move(style), own, order, section_});
  }

  // How many rows of its section there are from this one on.
  [[nodiscard]] std::size_t rowsLeft(std::size_t first) const {
    if (first == 0 || sources_[first - 1].section != sources_[first].section) {
      rowsLeft_ = 0;
      while (first + rowsLeft_ < sources_.size() && sources_[first + rowsLeft_].section == sources_[first].section) {
        ++rowsLeft_;
      }
    } else {
      --rowsLeft_;
    }
    return rowsLeft_;
  }

  void place(const Source& source, std::size_t rowsLeft) {
    GridRow row;
    row.isHeading = source.order == 0 && (grid_.rows.empty() || grid_.rows.back().isHeading);
    std::size_t column = 0;
    for (const auto& child : source.node->children) {
      if (!isCell(child->tag)) continue;
      while (column < hanging_.size() && hanging_[column] > 0) ++column;
      if (column >= mostColumns_) {
        grid_.isCut = true;
        break;
      }
      GridCell cell = cellOf(*child, source, column, rowsLeft);
      if (cell.style.isHidden) continue;
      column += cell.columns;
      row.cells.push_back(std::move(cell));
    }
    const bool isCovered = std::ranges::any_of(hanging_, [](std::size_t rows) { return rows > 0; });
    if (row.cells.empty() && !isCovered) return;
    settleHeight(row, source.style.height);
    cover(row);
    grid_.rows.push_back(std::move(row));
  }

  GridCell cellOf(const Node& node, const Source& source, std::size_t column, std::size_t rowsLeft) {
    GridCell cell;
    cell.node = &node;
    cell.style = styles_.styleOf(node, source.style);
    cell.row = grid_.rows.size();
    cell.column = column;
    const std::size_t wanted = std::clamp<std::size_t>(count(node, "colspan", 1), 1, mostColumns_ - column);
    while (cell.columns < wanted) {
      const std::size_t next = column + cell.columns;
      if (next < hanging_.size() && hanging_[next] > 0) break;
      ++cell.columns;
    }
    const std::size_t rows = count(node, "rowspan", 1);
    cell.rows = rows == 0 ? rowsLeft : std::min(rows, rowsLeft);
    if (!cell.style.background.isValid()) cell.style.background = source.background;
    if (!cell.style.background.isValid() && column < columns_.size()) {
      cell.style.background = columns_[column].background;
    }
    takeWidth(cell);
    return cell;
  }

  void takeWidth(const GridCell& cell) {
    const PageStyle& style = cell.style;
    if (cell.columns != 1 || style.width.value <= 0) return;
    Length& width = widthOf(cell.column);
    if (width.unit != Length::Unit::automatic) return;
    width = style.width;
    if (width.isPixels()) width.value += style.padding[kLeft] + style.padding[kRight];
  }

  Length& widthOf(std::size_t column) {
    if (grid_.widths.size() <= column) grid_.widths.resize(column + 1);
    return grid_.widths[column];
  }

  // A row is as high as it is told by way of the cell that has the least text, the others being free to be higher.
  static void settleHeight(GridRow& row, double height) {
    GridCell* shortest = nullptr;
    qsizetype least = 0;
    for (GridCell& cell : row.cells) {
      if (cell.rows != 1) continue;
      height = std::max(height, cell.style.height);
      if (height <= 0) continue;
      const qsizetype length = textLength(*cell.node);
      if (shortest == nullptr || length < least) {
        shortest = &cell;
        least = length;
      }
    }
    for (GridCell& cell : row.cells) cell.style.height = &cell == shortest ? height : 0;
  }

  void cover(const GridRow& row) {
    for (std::size_t& rows : hanging_) rows -= rows > 0 ? 1 : 0;
    for (const GridCell& cell : row.cells) {
      const std::size_t end = cell.column + cell.columns;
      if (hanging_.size() < end) hanging_.resize(end);
      for (std::size_t column = cell.column; column < end; ++column) hanging_[column] = cell.rows - 1;
      grid_.columns = std::max(grid_.columns, end);
    }
  }

  const PageStyle& style_;
  PageStyles& styles_;
  std::vector<Source> sources_;
  std::vector<Column> columns_;
  TableGrid grid_;
  std::vector<std::size_t> hanging_;  // for each column, the rows from here on that a cell above covers
  std::size_t mostColumns_ = kMostColumns;
  mutable std::size_t rowsLeft_ = 0;
  int section_ = 0;
};

}  // namespace

TableGrid gridOf(const Node& table, const PageStyle& style, PageStyles& styles, std::size_t& places) {
  TableGrid grid = GridBuilder(style, styles).build(table, places);
  places -= std::min(places, grid.columns * grid.rows.size());
  settleWidths(grid);
  return grid;
}

}  // namespace desktop::pages
