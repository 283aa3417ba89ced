#pragma once

#include <filesystem>

#include "study/model/progress.h"
#include "study/model/study.h"

namespace study {

// Writes all files of a study's application folder into `folder`, which is empty: year tables and workspaces, the
// statistics map, the thematic catalogue, the pages, the documents and the reports. An OffscreenToolkit must exist.
// Throws StudyError.
void writeApplicationFolder(const Study& study, const std::filesystem::path& folder, const Progress& progress);

}  // namespace study
