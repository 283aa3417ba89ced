#pragma once

#include <algorithm>
#include <array>

namespace study::pages {

// The program has a button for the reports of these years only.
inline constexpr std::array kReportYears{1999, 2000, 2001};

[[nodiscard]] inline bool hasReport(int year) {
  return std::find(kReportYears.begin(), kReportYears.end(), year) != kReportYears.end();
}

}  // namespace study::pages
