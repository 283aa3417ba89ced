#pragma once

#include <cstddef>
#include <filesystem>

#include "study/methods/figure_book.h"
#include "study/model/study.h"

namespace study {

// The three tables of a year (an index of the study's), each row with its unit's object: Provincias<year>,
// ZonasBasicas<year>, Veldoria<year>. Throws StudyError.
void writeYearTables(const Study& study, const FigureBook& book, std::size_t year, const std::filesystem::path& folder);

}  // namespace study
