#pragma once

#include <QByteArray>
#include <string>
#include <vector>

#include "study/reports/page.h"

namespace study::reports {

// The pages as a PDF document. Its creation date is the first moment of `year`, so that the same pages give the same
// bytes whenever and wherever they are written. Throws StudyError.
[[nodiscard]] QByteArray pdfOf(const std::vector<Page>& pages, const std::string& title, int year);

// A finished document with another creation date, its table of objects moved to match. `date` is a PDF date,
// "D:19990101000000Z". Throws StudyError where the document has no date or no table of objects.
[[nodiscard]] QByteArray withCreationDate(const QByteArray& document, const QByteArray& date);

}  // namespace study::reports
