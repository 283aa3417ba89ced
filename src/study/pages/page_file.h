#pragma once

#include <filesystem>
#include <string>

namespace study::pages {

// Writes a page below an application folder; folders on the way are made. `path` is UTF-8, relative, with "/" between
// folders. Throws StudyError, which names the file, when it cannot be written.
void writePage(const std::filesystem::path& applicationFolder, const std::string& path, const std::string& html);

}  // namespace study::pages
