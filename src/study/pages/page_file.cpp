#include "study/pages/page_file.h"

#include <fstream>
#include <system_error>

#include "study/model/study_error.h"
#include "text/file_text.h"

namespace study::pages {

void writePage(const std::filesystem::path& applicationFolder, const std::string& path, const std::string& html) {
  const std::filesystem::path file = applicationFolder / text::toPath(path);
  std::error_code error;
  std::filesystem::create_directories(file.parent_path(), error);
  std::ofstream out(file, std::ios::binary);
  out << html;
  out.close();
  if (!out) throw StudyError(text::fromPath(file) + " cannot be written");
}

}  // namespace study::pages
