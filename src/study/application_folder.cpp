#include "study/application_folder.h"

#include <fstream>

#include "study/output_folder.h"
#include "study/statistics_table.h"
#include "study/study_error.h"
#include "study/workspaces.h"
#include "study/year_tables.h"

namespace study {

namespace fs = std::filesystem;

namespace {

void writeMark(const fs::path& folder) {
  std::ofstream mark(folder / kStudyMark, std::ios::binary);
  mark << "Mortalidad en Veldoria 1999-2002\r\n\r\n"
          "Esta carpeta contiene los datos de un estudio de mortalidad. La región, sus provincias,\r\n"
          "sus zonas y todas sus cifras son ficticias. La carpeta se puede volver a generar.\r\n";
  mark.close();
  if (!mark) throw StudyError("the file " + (folder / kStudyMark).string() + " could not be written");
}

}  // namespace

void writeApplicationFolder(const Study& study, const fs::path& folder, const Progress& progress) {
  const Extent region = extent(study.regionOutline());
  const fs::path tables = folder / "Tablas";
  for (int year = kFirstYear; year < kFirstYear + kYears; ++year) {
    const std::string name = std::to_string(year);
    progress("maps of " + name);
    fs::create_directories(tables / name);
    writeYearTables(study, year, tables / name);
    writeWorkspace(tables / name / ("Año" + name + ".wor"), yearWorkspace(year, region));
  }
  progress("statistics map");
  fs::create_directories(tables / "Estadisticas");
  writeStatisticsTable(study, tables / "Estadisticas");
  writeWorkspace(tables / "Estadisticas" / "Estadisticas.wor", statisticsWorkspace(region));
  writeMark(folder);
}

}  // namespace study
