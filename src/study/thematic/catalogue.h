#pragma once

#include <filesystem>

#include "study/methods/figure_book.h"
#include "study/model/progress.h"
#include "study/model/study.h"

namespace study {

// Writes the thematic catalogue into the application folder's "Tablas": each map's workspace and, beside it, its table
// (Nombre, Indicador, Sexo, Tipo, Valor; one row for each unit that has a figure), and the base areas that the maps
// share. Throws StudyError.
void writeCatalogue(const Study& study, const FigureBook& book, const std::filesystem::path& tables,
                    const Progress& progress);

}  // namespace study
