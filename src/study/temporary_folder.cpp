#include "study/temporary_folder.h"

#include <cstdlib>
#include <string>
#include <system_error>

#include "study/model/study_error.h"

namespace study {

TemporaryFolder::TemporaryFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "study-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw StudyError("no temporary folder can be made: " + name);
  path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace study
