#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "database.h"

// The sample study's figures, computed by queries over its raw input and by nothing that the builder is made of.
namespace studytest {

inline constexpr std::array kYears{"1999", "2000", "2001", "2002"};
inline constexpr std::array kSexes{"Ambos sexos", "Hombres", "Mujeres"};

// How large the sample is, which tells how much there is to compare.
inline constexpr std::size_t kProvinces = 8;
inline constexpr std::size_t kZones = 120;
inline constexpr std::size_t kUnits = kZones + kProvinces + 1;
inline constexpr std::size_t kAges = 19;

// The raw input, generated anew, and all that figures.sql makes of it. Made once a program. Throws std::runtime_error.
[[nodiscard]] const Database& rawFigures();

// Where a figure of the map tables stands: base name of its table, year, province (of zones only), unit, sex, type,
// indicator.
struct FigureKey {
  std::string table;
  std::string year;
  std::string province;
  std::string name;
  std::string sex;
  std::string type;
  std::string indicator;

  auto operator<=>(const FigureKey&) const = default;
};
using FigureMap = std::map<FigureKey, double>;

// The figures that the map tables are to hold: of each unit and year 35 of both sexes, 34 of men and 34 of women.
[[nodiscard]] const FigureMap& expectedFigures();
inline constexpr std::size_t kFigures = kUnits * kYears.size() * (35 + 34 + 34);

// The names of the provinces.
[[nodiscard]] std::vector<std::string> provinces();

}  // namespace studytest
