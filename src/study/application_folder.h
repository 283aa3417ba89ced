#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "study/study.h"

namespace study {

// Told what is being done, a line each.
using Progress = std::function<void(const std::string& step)>;

// Writes all files of a study's application folder into `folder`, which is empty. Throws StudyError.
void writeApplicationFolder(const Study& study, const std::filesystem::path& folder, const Progress& progress);

}  // namespace study
