#pragma once

#include "study/reports/flow.h"
#include "study/reports/report_data.h"

// A report's parts, each on pages of its own. They say what there is to say of any study: one year, few persons, no
// deaths, no causes, figures that may not be published.
namespace study::reports {

void addCover(Flow& flow, const ReportData& data);
// Presents the study, and leaves room on the page for the list of `sections` sections. Returns where that begins.
[[nodiscard]] double addPresentation(Flow& flow, const ReportData& data, std::size_t sections);
void addSummary(Flow& flow, const ReportData& data);
void addPopulation(Flow& flow, const ReportData& data);
void addAges(Flow& flow, const ReportData& data);
void addCauses(Flow& flow, const ReportData& data);
void addProvinces(Flow& flow, const ReportData& data);
void addMaps(Flow& flow, const ReportData& data);
void addLifeLost(Flow& flow, const ReportData& data);
// All zones by province, or of more than kMostZones those with the highest and the lowest standardised rates, 30 each.
// Zones whose rate is unstable are among these only where no others are left.
void addZones(Flow& flow, const ReportData& data);
void addMethods(Flow& flow, const ReportData& data);

inline constexpr std::size_t kMostZones = 200;
inline constexpr std::size_t kExtremeZones = 30;

}  // namespace study::reports
