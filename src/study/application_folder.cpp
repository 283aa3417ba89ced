#include "study/application_folder.h"

#include <algorithm>

#include "study/methods/figure_book.h"
#include "study/model/study_error.h"
#include "study/output/map_workspaces.h"
#include "study/output/statistics_table.h"
#include "study/output/workspace_text.h"
#include "study/output/year_tables.h"
#include "study/pages/documents.h"
#include "study/pages/report_years.h"
#include "study/pages/table_pages.h"
#include "study/reports/report.h"
#include "study/thematic/catalogue.h"

namespace study {

namespace fs = std::filesystem;

namespace {

void writeYearMaps(const Study& study, const FigureBook& book, const fs::path& tables, const Progress& progress) {
  const MapProjection projection = mapProjection(study);
  for (std::size_t year = 0; year < study.years.size(); ++year) {
    const std::string name = std::to_string(study.years[year]);
    progress("Making the maps of " + name);
    fs::create_directories(tables / name);
    writeYearTables(study, book, year, tables / name);
    writeWorkspace(tables / name / ("Año" + name + ".wor"), yearWorkspace(study.years[year], projection));
  }
}

void writeStatisticsMap(const Study& study, const fs::path& tables) {
  const fs::path folder = tables / "Estadisticas";
  fs::create_directories(folder);
  writeStatisticsTable(study, folder);
  writeWorkspace(folder / "Estadisticas.wor", statisticsWorkspace(mapProjection(study)));
}

void writeReports(const Study& study, const FigureBook& book, const fs::path& documents, const Progress& progress) {
  fs::create_directories(documents);
  for (std::size_t year = 0; year < study.years.size(); ++year) {
    const int number = study.years[year];
    if (!pages::hasReport(number)) continue;
    progress("Writing the report of " + std::to_string(number));
    writeReport(study, book, year, documents / ("mortalidad_" + std::to_string(number) + ".pdf"));
  }
}

}  // namespace

void writeApplicationFolder(const Study& study, const fs::path& folder, const Progress& progress) {
  progress("Computing the figures of all units");
  const FigureBook book(study);
  const fs::path tables = folder / "Tablas";
  try {
    writeYearMaps(study, book, tables, progress);
    progress("Making the statistics map");
    writeStatisticsMap(study, tables);
    writeCatalogue(study, book, tables, progress);
    progress("Writing the statistical tables");
    pages::writeTablePages(study, folder);
    progress("Writing the documents");
    pages::writeDocuments(study, folder);
    writeReports(study, book, folder / "Archivos", progress);
  } catch (const fs::filesystem_error& error) {
    throw StudyError(std::string("the study could not be written: ") + error.what());
  }
}

}  // namespace study
