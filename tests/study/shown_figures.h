#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "page_table.h"

namespace studytest {

// Where a figure stands in a page: the table's number from 0, the section, the row, the column. A row of a part of the
// one before it (a zone under its province) has both names, a slash between.
using Place = std::vector<std::string>;

// How a page is to show a figure; without a value it has the mark of a missing one.
struct Shown {
  std::optional<double> value;
  int decimals = 0;
  bool isUnstable = false;
};
using ShownFigures = std::map<Place, Shown>;
using PageTexts = std::map<Place, std::string>;

// Rates that rest on fewer deaths are unstable.
inline constexpr double kStableFrom = 20;

// A count, a number with one decimal, and a rate that rests on some deaths.
[[nodiscard]] Shown count(double number);
[[nodiscard]] Shown decimal(double number);
[[nodiscard]] Shown rate(std::optional<double> number, double deaths);

// All cells of a page's tables. Throws std::runtime_error where two have one place.
[[nodiscard]] PageTexts textsOf(const std::vector<PageTable>& tables);

// Compares to the last digit shown. Reports what is missing, superfluous or different, with the page's name, as test
// failures; returns how many were equal.
[[nodiscard]] std::size_t countEqual(const std::string& page, const ShownFigures& expected, const PageTexts& found);

}  // namespace studytest
