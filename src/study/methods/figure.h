#pragma once

#include <string>
#include <string_view>

namespace study {

// What a figure tells, the same for every unit and year.
struct FigureLine {
  std::string_view sex;  // a name of kSexChoices
  std::string_view type;
  std::string indicator;
  bool isRate = false;
};

// Rates that rest on fewer deaths than this vary too much by chance to be read alone. Source: R. Klein, S. Proctor,
// M. Boudreault, K. Turczyn, "Healthy People 2010 criteria for data suppression", Statistical Notes 24, National Center
// for Health Statistics, Hyattsville 2002. The relative standard error of 20 deaths, 1 / sqrt(20), is 22%.
inline constexpr long kStableDeaths = 20;

// One published value of a unit in a year.
struct Figure {
  const FigureLine* line = nullptr;  // of the book that the figure stands in
  double value = 0;
  long deaths = 0;  // on which it rests; none for the population

  [[nodiscard]] std::string_view sex() const { return line->sex; }
  [[nodiscard]] std::string_view type() const { return line->type; }
  [[nodiscard]] const std::string& indicator() const { return line->indicator; }
  [[nodiscard]] bool unstable() const { return line->isRate && deaths < kStableDeaths; }
};

}  // namespace study
