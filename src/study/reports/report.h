#pragma once

#include <cstddef>
#include <filesystem>

#include "study/methods/figure_book.h"
#include "study/model/study.h"

namespace study {

// Writes the report of a year (an index of the study's years) as a PDF document of A4 pages. The same study gives the
// same bytes. An OffscreenToolkit, or another application object of the toolkit, must exist. Throws StudyError.
void writeReport(const Study& study, const FigureBook& book, std::size_t year, const std::filesystem::path& file);

}  // namespace study
