#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "motor/tables/base_table.h"

namespace figures {

// The study that the map engine is measured on, and its year; set once, before anything is measured.
struct EngineStudy {
  std::filesystem::path folder;
  std::string year;

  [[nodiscard]] std::filesystem::path yearFolder() const { return folder / "Tablas" / year; }
  // One of the year's tables: "Provincias", "ZonasBasicas", "Veldoria".
  [[nodiscard]] std::filesystem::path tableFile(const char* base) const {
    return yearFolder() / (base + year + ".TAB");
  }
  [[nodiscard]] std::string yearMap() const { return (yearFolder() / ("Año" + year + ".wor")).string(); }
};
[[nodiscard]] EngineStudy& engineStudy();

// The table of the year's zones, from the process's store.
[[nodiscard]] std::shared_ptr<const motor::BaseTable> zones();

// A point in each of some zones, spread over the region.
inline constexpr std::size_t kPlaces = 50;
[[nodiscard]] std::vector<motor::Point> somePoints();

// Throws std::runtime_error where a measurement has gone wrong.
void require(bool holds, const char* what);

// Makes the benchmarks of questions to the engine and to a database known: engineName, sqliteName, ...
void registerQuestions();

}  // namespace figures
