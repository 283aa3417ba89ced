#include "study/reports/sheet_layout.h"

#include <algorithm>
#include <numeric>

namespace study::reports {

namespace {

constexpr double kLargestType = 7.5;
constexpr double kSmallestType = 5;
constexpr double kTypeStep = 0.25;
constexpr double kNarrowestName = 120;
constexpr double kRowPadding = 1.8;  // above and below a row's lines

}  // namespace

std::string printed(const pages::Cell& cell) {
  switch (cell.mark) {
    case pages::Mark::unstable:
      return pages::kUnstableMark + cell.text;
    case pages::Mark::missing:
      return pages::kMissingMark;
    case pages::Mark::hidden:
      return pages::kHiddenMark;
    case pages::Mark::none:
      break;
  }
  return cell.text;
}

SheetLayout::SheetLayout(const pages::Sheet& sheet, double width) : sheet_(sheet) {
  for (size_ = kLargestType; !isFitted(width) && size_ > kSmallestType; size_ -= kTypeStep) {
  }
  measureHeader();
}

double SheetLayout::cellWidth(std::size_t column) const {
  double widest = widestWord(sheet_.columns[column].name, headerStyle());
  for (const pages::Row& row : sheet_.rows) {
    if (column < row.cells.size()) widest = std::max(widest, textWidth(printed(row.cells[column]), styleOf(row)));
  }
  return widest + 2 * kPadding;
}

// The names get what the figures leave.
bool SheetLayout::isFitted(double width) {
  widths_.assign(1, 0);
  for (std::size_t column = 0; column < sheet_.columns.size(); ++column) widths_.push_back(cellWidth(column));
  widenGroups();
  widths_.front() = width - std::accumulate(widths_.begin() + 1, widths_.end(), 0.0);
  if (widths_.front() < kNarrowestName) return false;
  // Few narrow columns stand better apart than far from their names.
  double longest = widestWord(sheet_.rowHeader, headerStyle());
  for (const pages::Row& row : sheet_.rows) longest = std::max(longest, textWidth(row.name, styleOf(row)));
  const double spare = widths_.front() - std::max(longest + 4 * kPadding, kNarrowestName);
  if (spare > 0) {
    widths_.front() -= spare;
    for (std::size_t i = 1; i < widths_.size(); ++i) widths_[i] += spare / static_cast<double>(widths_.size() - 1);
  }
  return true;
}

// Columns below a wide common title share what it needs.
void SheetLayout::widenGroups() {
  for (std::size_t first = 0; first < sheet_.columns.size();) {
    std::size_t end = first + 1;
    while (end < sheet_.columns.size() && !sheet_.columns[first].group.empty() &&
           sheet_.columns[end].group == sheet_.columns[first].group) {
      ++end;
    }
    const auto begin = widths_.begin() + static_cast<std::ptrdiff_t>(first) + 1;
    const auto count = static_cast<std::ptrdiff_t>(end - first);
    const double missing = textWidth(sheet_.columns[first].group, headerStyle()) + 2 * kPadding -
                           std::accumulate(begin, begin + count, 0.0);
    if (missing > 0 && !sheet_.columns[first].group.empty()) {
      std::for_each(begin, begin + count, [&](double& each) { each += missing / static_cast<double>(count); });
    }
    first = end;
  }
}

bool SheetLayout::hasGroups() const {
  return std::any_of(sheet_.columns.begin(), sheet_.columns.end(),
                     [](const pages::Column& column) { return !column.group.empty(); });
}

TextStyle SheetLayout::styleOf(const pages::Row& row) const {
  const bool isHeading = row.kind != pages::RowKind::figures;
  return {size_, isHeading, row.kind == pages::RowKind::section ? kTitle : kText};
}

std::vector<std::string> SheetLayout::nameLines(const pages::Row& row) const {
  return wrapped(row.name, nameWidth(), styleOf(row));
}

double SheetLayout::rowHeight(std::size_t row) const {
  const auto lines = std::max<std::size_t>(1, nameLines(sheet_.rows[row]).size());
  return static_cast<double>(lines) * lineHeight({size_}) + 2 * kRowPadding;
}

void SheetLayout::measureHeader() {
  const double line = lineHeight(headerStyle());
  groupHeight_ = hasGroups() ? line + kRowPadding : 0;
  std::size_t lines = wrapped(sheet_.rowHeader, nameWidth(), headerStyle()).size();
  for (std::size_t i = 0; i < sheet_.columns.size(); ++i) {
    lines = std::max(lines, wrapped(sheet_.columns[i].name, widths_[i + 1] - 2 * kPadding, headerStyle()).size());
  }
  headerHeight_ = groupHeight_ + static_cast<double>(lines) * line + 2 * kRowPadding;
}

void SheetLayout::paintTitle(Page& page, const std::string& title, double left, double width, double bottom,
                             Align align) const {
  const std::vector<std::string> lines = wrapped(title, width - 2 * kPadding, headerStyle());
  double baseline = bottom - kRowPadding - descent(headerStyle()) -
                    (static_cast<double>(lines.size()) - 1) * lineHeight(headerStyle());
  for (const std::string& line : lines) {
    page.text({align == Align::left ? left + kPadding : left + width - kPadding, baseline}, line, headerStyle(), align);
    baseline += lineHeight(headerStyle());
  }
}

void SheetLayout::paintGroups(Page& page, double left, double top) const {
  double x = left + widths_.front();
  for (std::size_t first = 0; first < sheet_.columns.size();) {
    const std::string& group = sheet_.columns[first].group;
    double width = widths_[first + 1];
    std::size_t end = first + 1;
    for (; end < sheet_.columns.size() && !group.empty() && sheet_.columns[end].group == group; ++end) {
      width += widths_[end + 1];
    }
    if (!group.empty()) {
      page.text({x + width / 2, top + kRowPadding + ascent(headerStyle())}, group, headerStyle(), Align::centre);
      page.line({x + kPadding, top + groupHeight_}, {x + width - kPadding, top + groupHeight_}, {kRule, 0.5});
    }
    x += width;
    first = end;
  }
}

void SheetLayout::paintHeader(Page& page, double left, double top) const {
  const double width = std::accumulate(widths_.begin(), widths_.end(), 0.0);
  page.box({left, top, width, headerHeight_}, kTint);
  page.line({left, top + headerHeight_}, {left + width, top + headerHeight_}, {kTitle, 0.8});
  paintGroups(page, left, top);
  const double bottom = top + headerHeight_;
  paintTitle(page, sheet_.rowHeader, left, widths_.front(), bottom, Align::left);
  double x = left + widths_.front();
  for (std::size_t i = 0; i < sheet_.columns.size(); x += widths_[++i]) {
    paintTitle(page, sheet_.columns[i].name, x, widths_[i + 1], bottom, Align::right);
  }
}

void SheetLayout::paintRow(Page& page, double left, double top, std::size_t index) const {
  const pages::Row& row = sheet_.rows[index];
  const TextStyle style = styleOf(row);
  const double width = std::accumulate(widths_.begin(), widths_.end(), 0.0);
  const double height = rowHeight(index);
  if (row.kind == pages::RowKind::total || row.kind == pages::RowKind::group) {
    page.box({left, top, width, height}, kTint);
  }
  const double first = top + kRowPadding + ascent(style);
  double baseline = first;
  const std::vector<std::string> lines = nameLines(row);
  for (const std::string& line : lines) {
    page.text({left + kPadding, baseline}, line, style);
    baseline += lineHeight(style);
  }
  double right = left + widths_.front();
  for (std::size_t column = 0; column < row.cells.size() && column < sheet_.columns.size(); ++column) {
    right += widths_[column + 1];
    TextStyle cell = style;
    if (row.cells[column].mark != pages::Mark::none) cell.colour = kFaintText;
    page.text({right - kPadding, first}, printed(row.cells[column]), cell, Align::right);
  }
  page.line({left, top + height}, {left + width, top + height}, {kGrid, 0.5});
}

}  // namespace study::reports
