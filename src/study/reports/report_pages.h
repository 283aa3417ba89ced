#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "study/methods/figure_book.h"
#include "study/model/study.h"
#include "study/reports/page.h"

namespace study::reports {

// The pages of a year's report. `year` is an index of the study's years.
[[nodiscard]] std::vector<Page> reportPages(const Study& study, const FigureBook& book, std::size_t year);

// "Mortalidad en Veldoria. Informe 1999".
[[nodiscard]] std::string reportTitle(const Study& study, std::size_t year);

}  // namespace study::reports
