#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "raw_figures.h"

namespace studytest {

// A map table's columns and rows as texts, numbers spelled so that nothing of them is lost. Of the objects only whether
// there is one is known.
struct MapTable {
  std::vector<std::string> columns;
  std::vector<std::vector<std::string>> rows;
  std::size_t objects = 0;
};

// Reads a TAB file. Throws std::runtime_error.
[[nodiscard]] MapTable readMapTable(const std::filesystem::path& file);

// The file of a year table in the sample study, from its base name.
[[nodiscard]] std::filesystem::path yearTable(const std::string& base, const std::string& year);
inline constexpr std::array kYearTables{"Provincias", "ZonasBasicas", "Veldoria"};

// Enters the rows of a year table. A second row for a figure is an std::runtime_error, as is another year.
void addFigures(FigureMap& figures, const std::string& base, const std::string& year, const MapTable& table);

// All figures of the sample's year tables, read once a program.
[[nodiscard]] const FigureMap& mapFigures();

// Compares to the last digit that the program shows (hundredths), and beyond it to nine digits. Reports what is
// missing, superfluous or different as test failures; returns how many were equal.
[[nodiscard]] std::size_t countEqual(const FigureMap& expected, const FigureMap& found);

}  // namespace studytest
