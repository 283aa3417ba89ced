#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "study/counts.h"

namespace study {

inline constexpr std::string_view kGeneralIndicators = "Indicadores generales";
// The tree of the program shows the cause alone: it cuts these 33 characters.
inline constexpr std::string_view kCausePrefix = "Tasa estandarizada (x100.000) de ";

// One published value of a unit in a year.
struct Figure {
  std::string_view sex;  // "Ambos sexos", "Hombres", "Mujeres"
  std::string_view type;
  std::string indicator;
  double value;
};

// All values of a unit, by sex, type and indicator. A sex without persons has no rates; a cause that a sex does not
// have has no line.
[[nodiscard]] std::vector<Figure> figures(const Counts& counts);

// Persons and deaths of one sex, or of both.
struct SexCounts {
  ByAge persons{};
  ByAge deaths{};  // of all causes
};
[[nodiscard]] SexCounts bothSexes(const Counts& counts);

}  // namespace study
