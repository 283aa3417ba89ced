#pragma once

#include <filesystem>

namespace study {

// An empty folder among the machine's temporary ones, removed with all that it holds at the end.
class TemporaryFolder {
 public:
  // Throws StudyError when none can be made.
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace study
