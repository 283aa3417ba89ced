#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "study/pages/year_figures.h"

// The five kinds of statistical tables, each page a text. `list` is kBroadGroups or kReducedList.
namespace study::pages {

// Years of potential life lost before 70 and their rates, by cause, in the region and its provinces.
[[nodiscard]] std::string lifeLostPage(const YearFigures& figures, std::string_view list, const SexChoice& sex);

// Deaths and specific rates by cause and age group in the region or a province.
[[nodiscard]] std::string deathsByAgePage(const YearFigures& figures, Unit unit, std::string_view list,
                                          const SexChoice& sex);

// Deaths by cause, both lists, in the region and its provinces, and their share in all deaths there.
[[nodiscard]] std::string distributionPage(const YearFigures& figures, const SexChoice& sex);

// Population, deaths, rates and years of life lost of the region and its provinces.
[[nodiscard]] std::string provinceIndicatorsPage(const YearFigures& figures, const SexChoice& sex);

// The same of the region and its zones, grouped by province.
[[nodiscard]] std::string zoneIndicatorsPage(const YearFigures& figures, const SexChoice& sex);

// Writes the pages of all years below the application folder, where the program looks for them. Throws StudyError when
// a file cannot be written.
void writeTablePages(const Study& study, const std::filesystem::path& applicationFolder);

}  // namespace study::pages
