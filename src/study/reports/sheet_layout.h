#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "study/pages/sheet.h"
#include "study/reports/page.h"

namespace study::reports {

// A table of figures laid out for a page's width: the widths of its columns and the heights of its rows. The type is as
// small as the columns need; names are wrapped, figures never are.
class SheetLayout {
 public:
  // The sheet outlives its layout.
  SheetLayout(const pages::Sheet& sheet, double width);

  [[nodiscard]] double headerHeight() const { return headerHeight_; }
  [[nodiscard]] double rowHeight(std::size_t row) const;
  [[nodiscard]] double typeSize() const { return size_; }
  // The names' column, then one for each of the sheet's.
  [[nodiscard]] const std::vector<double>& widths() const { return widths_; }

  // Below `top`, from `left` on.
  void paintHeader(Page& page, double left, double top) const;
  void paintRow(Page& page, double left, double top, std::size_t row) const;

 private:
  [[nodiscard]] TextStyle styleOf(const pages::Row& row) const;
  [[nodiscard]] TextStyle headerStyle() const { return {size_, true, kTitle}; }
  [[nodiscard]] bool hasGroups() const;
  [[nodiscard]] double nameWidth() const { return widths_.front() - 2 * kPadding; }
  [[nodiscard]] double cellWidth(std::size_t column) const;
  [[nodiscard]] std::vector<std::string> nameLines(const pages::Row& row) const;
  [[nodiscard]] bool isFitted(double width);
  void widenGroups();
  void measureHeader();
  void paintGroups(Page& page, double left, double top) const;
  void paintTitle(Page& page, const std::string& title, double left, double width, double bottom, Align align) const;

  static constexpr double kPadding = 3.5;

  const pages::Sheet& sheet_;
  double size_ = 0;
  std::vector<double> widths_;
  double groupHeight_ = 0;
  double headerHeight_ = 0;
};

// A cell as it is printed: with the mark of an unstable figure before it, or with the mark alone.
[[nodiscard]] std::string printed(const pages::Cell& cell);

}  // namespace study::reports
