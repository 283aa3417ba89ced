#include "shown_figures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

#include "spanish_figure.h"

namespace studytest {

namespace {

constexpr const char* kMissing = "–";

std::string spelled(const Place& place) {
  std::string text;
  for (const std::string& part : place) text += " | " + part;
  return text;
}

bool isShown(const Shown& expected, const std::string& text) {
  if (!expected.value) return text == kMissing;
  const auto figure = spanishFigure(text);
  if (!figure || figure->decimals != expected.decimals || figure->isMarked != expected.isUnstable) return false;
  const double scale = std::pow(10.0, expected.decimals);
  return std::llround(figure->value * scale) == std::llround(*expected.value * scale);
}

}  // namespace

Shown count(double number) { return {number, 0, false}; }

Shown decimal(double number) { return {number, 1, false}; }

Shown rate(std::optional<double> number, double deaths) { return {number, 1, number && deaths < kStableFrom}; }

PageTexts textsOf(const std::vector<PageTable>& tables) {
  PageTexts texts;
  for (std::size_t i = 0; i < tables.size(); ++i) {
    std::string group;
    for (const PageRow& row : tables[i].rows) {
      const bool isPart = row.kind == "i";
      if (!isPart) group = row.name;
      const std::string name = isPart ? group + "/" + row.name : row.name;
      for (std::size_t column = 0; column < row.cells.size(); ++column) {
        const Place place{std::to_string(i), row.section, name, tables[i].columns[column]};
        if (!texts.emplace(place, row.cells[column]).second) throw std::runtime_error("twice:" + spelled(place));
      }
    }
  }
  return texts;
}

std::size_t countEqual(const std::string& page, const ShownFigures& expected, const PageTexts& found) {
  constexpr std::size_t kReported = 5;
  std::size_t equal = 0;
  std::size_t wrong = 0;
  for (const auto& [place, figure] : expected) {
    const auto text = found.find(place);
    if (text != found.end() && isShown(figure, text->second)) {
      ++equal;
    } else if (++wrong <= kReported) {
      ADD_FAILURE() << page << spelled(place) << ": " << (text == found.end() ? "missing" : text->second) << " is not "
                    << figure.value.value_or(NAN) << (figure.isUnstable ? ", unstable" : "");
    }
  }
  for (const auto& [place, text] : found) {
    if (!expected.contains(place) && ++wrong <= kReported) {
      ADD_FAILURE() << page << spelled(place) << ": superfluous: " << text;
    }
  }
  EXPECT_EQ(wrong, 0U) << page;
  return equal;
}

}  // namespace studytest
