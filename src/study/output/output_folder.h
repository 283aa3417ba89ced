#pragma once

#include <filesystem>

namespace study {

// A study on its way to its place. It is made in a folder beside the output folder and moved there as a whole, so that
// the output never holds half a study. What was not committed is removed.
class OutputFolder {
 public:
  // Throws StudyError when `output` is neither absent, empty nor an earlier study (which would be overwritten), or when
  // the folder beside it cannot be made.
  explicit OutputFolder(std::filesystem::path output);
  ~OutputFolder();
  OutputFolder(const OutputFolder&) = delete;
  OutputFolder& operator=(const OutputFolder&) = delete;

  // Where to write.
  [[nodiscard]] const std::filesystem::path& draft() const { return draft_; }

  // Puts the study in its place. Files that the earlier study did not have, such as the program itself, are kept; files
  // that have not changed keep their time. On failure (StudyError) the output is as it was.
  void commit();

 private:
  std::filesystem::path output_;
  std::filesystem::path draft_;
};

// The file by which a study's folder is known.
inline constexpr const char* kStudyMark = "Estudio.txt";

}  // namespace study
