#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "study/counts.h"
#include "study/coverage.h"

namespace study {

inline constexpr std::string_view kRegion = "Veldoria";
inline constexpr int kFirstYear = 1999;
inline constexpr int kYears = 4;

struct Zone {
  std::string name;
  int province;
};

// Everything that a study is made from: the region's division and what was counted in it. Provinces stand in the order
// of their names, zones in that of their provinces' and their own.
struct Study {
  std::vector<std::string> provinces;
  std::vector<Zone> zones;
  Coverage zoneCoverage;                    // cell z is zones[z]
  std::vector<std::vector<Counts>> counts;  // by year from kFirstYear on, by zone

  [[nodiscard]] const Counts& zoneCounts(int year, std::size_t zone) const;
  [[nodiscard]] Counts provinceCounts(int year, int province) const;
  [[nodiscard]] Counts regionCounts(int year) const;

  [[nodiscard]] std::vector<Ring> zoneOutline(std::size_t zone) const;
  [[nodiscard]] std::vector<Ring> provinceOutline(int province) const;
  [[nodiscard]] std::vector<Ring> regionOutline() const;
};

}  // namespace study
