#include "study/reports/report_pages.h"

#include <array>

#include "study/pages/table_page.h"
#include "study/reports/sections.h"

namespace study::reports {

namespace {

constexpr std::array kSections{&addSummary, &addPopulation, &addAges,  &addCauses, &addProvinces,
                               &addMaps,    &addLifeLost,   &addZones, &addMethods};

}  // namespace

std::string reportTitle(const Study& study, std::size_t year) {
  return "Mortalidad en " + std::string(kRegion) + ". Informe " + std::to_string(study.years[year]);
}

std::vector<Page> reportPages(const Study& study, const FigureBook& book, std::size_t year) {
  const ReportData data(study, book, year);
  Flow flow(pages::sourceOf(study));
  addCover(flow, data);
  const double contentsTop = addPresentation(flow, data, kSections.size());
  const std::size_t contentsPage = flow.pageCount();
  for (const auto addSection : kSections) addSection(flow, data);
  flow.paintContents(contentsPage, contentsTop);
  return std::move(flow).finished(reportTitle(study, year));
}

}  // namespace study::reports
