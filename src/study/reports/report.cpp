#include "study/reports/report.h"

#include <fstream>

#include "study/model/study_error.h"
#include "study/reports/pdf_file.h"
#include "study/reports/report_pages.h"
#include "study/reports/type.h"

namespace study {

void writeReport(const Study& study, const FigureBook& book, std::size_t year, const std::filesystem::path& file) {
  reports::requireTypeface();
  const std::vector<reports::Page> pages = reports::reportPages(study, book, year);
  const QByteArray document = reports::pdfOf(pages, reports::reportTitle(study, year), study.years[year]);
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out.write(document.data(), static_cast<std::streamsize>(document.size()));
  out.close();
  if (!out) throw StudyError("the report cannot be written: " + file.string());
}

}  // namespace study
