#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "study/reports/charts.h"
#include "study/reports/report_data.h"

// Words and rows that several sections use.
namespace study::reports {

[[nodiscard]] std::string whole(long number);
[[nodiscard]] std::string decimal(double number, int decimals = 1);

// With a blank between; empty ones are left out.
[[nodiscard]] std::string joinedSentences(const std::vector<std::string>& sentences);

// A cell as it is printed in running text and beside bars.
[[nodiscard]] std::string printedFigure(const pages::Cell& cell);

// The list that tells the main causes: the broad groups, or the reduced list of a study that has no groups.
[[nodiscard]] std::string_view mainList(const ReportData& data);

// The causes of a list that a sex has, by their deaths in the region, most first; those whose deaths are hidden last.
[[nodiscard]] std::vector<pages::CauseRow> causesByDeaths(const ReportData& data, std::string_view list,
                                                          const SexChoice& sex);

// Their deaths in the region, of a sex.
[[nodiscard]] BarChart deathsChart(const ReportData& data, const std::vector<pages::CauseRow>& causes,
                                   const SexChoice& sex);

}  // namespace study::reports
