#pragma once

#include <filesystem>
#include <string>

#include "study/model/study.h"

// The documents that the program opens, each a text. A document opens with what the study's settings say of it, or with
// words of its own; what follows is computed from the study, or is true of the program.
namespace study::pages {

[[nodiscard]] std::string presentationPage(const Study& study);
[[nodiscard]] std::string methodologyPage(const Study& study);
[[nodiscard]] std::string usePage(const Study& study);
[[nodiscard]] std::string creditsPage(const Study& study);
[[nodiscard]] std::string helpPage(const Study& study);

// Writes them below the application folder, where the program looks for them. Throws StudyError when a file cannot be
// written.
void writeDocuments(const Study& study, const std::filesystem::path& applicationFolder);

}  // namespace study::pages
