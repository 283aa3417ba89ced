#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "study/input/csv_file.h"
#include "study/model/sexes.h"
#include "study/model/study.h"

namespace study {

inline constexpr const char* kPopulationFile = "population.csv";
inline constexpr const char* kDeathsFile = "deaths.csv";

// The sum of a file's counts in a year: units' sums stay within what tables and counts hold.
inline constexpr long kLargestTotal = 2'000'000'000;

// What the rows of counts refer to. Years or zones that could not be read are empty: then nothing is said of them.
class CountedUnits {
 public:
  // `zones` outlives this; `zonesFile` is as messages call it.
  CountedUnits(std::vector<int> years, const std::vector<Zone>& zones, std::string zonesFile);

  [[nodiscard]] const std::vector<int>& years() const { return years_; }
  [[nodiscard]] const std::vector<Zone>& zones() const { return zones_; }
  [[nodiscard]] const std::string& zonesFile() const { return zonesFile_; }

  // The places of the current row's year and zone; none: unknown, with a fault.
  [[nodiscard]] std::optional<std::size_t> readYear(const CsvFile& file, std::string_view field) const;
  [[nodiscard]] std::optional<std::size_t> readZone(const CsvFile& file, std::string_view field) const;

 private:
  void addUnknownZone(const CsvFile& file, std::string_view field) const;

  std::vector<int> years_;
  const std::vector<Zone>& zones_;
  std::string zonesFile_;
  std::unordered_map<std::string_view, std::size_t> places_;
  std::unordered_map<std::string, std::size_t> foldedPlaces_;
};

// The sex of the current row; none, with a fault, for anything but "Hombres" and "Mujeres".
[[nodiscard]] std::optional<Sex> readSex(const CsvFile& file, std::string_view field);

// What a row of counts is about.
struct CountedGroup {
  std::size_t year;
  std::size_t zone;
  Sex sex;
};

// Reads all three fields, so that each fault is found.
[[nodiscard]] std::optional<CountedGroup> readGroup(const CsvFile& file, const CountedUnits& units,
                                                    std::string_view year, std::string_view zone, std::string_view sex);

// Finds rows that give the same as an earlier one.
class RowKeys {
 public:
  void add(std::uint64_t key, std::size_t line) { keys_.emplace_back(key, line); }
  // Enters a fault for each row whose key an earlier one has.
  void addDoubleRows(const FileFaults& faults);

 private:
  std::vector<std::pair<std::uint64_t, std::size_t>> keys_;
};

// Adds up a file's counts by year.
class Totals {
 public:
  explicit Totals(std::size_t years) : sums_(years) {}
  // Whether the count still fits; the first one of a year that does not is a fault of the file's row.
  [[nodiscard]] bool add(const CsvFile& file, std::size_t year, long count);

 private:
  std::vector<long> sums_;
};

}  // namespace study
