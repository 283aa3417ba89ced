#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace study {

// The file by which a study's folder is known: its first line is the study's name.
inline constexpr const char* kStudyMark = "Estudio.txt";

// Where a study is made inside its output folder: on the same disk, and under a name that nobody else's file has.
inline constexpr const char* kWorkFolder = ".estudio-en-curso";

// A study on its way to its place. It is made in a folder inside the output folder, which is marked as the builder's
// own, and put in its place when it is complete, so that the output never holds half a study: should the program be
// killed while it moves the parts, the next OutputFolder on the same place finishes the move. A lock keeps two builders
// from one output. What was not committed is removed.
class OutputFolder {
 public:
  // Looks at `output`, which it makes only in `openDraft`. Finishes what a killed builder has left there. Throws
  // StudyError when `output` is neither absent, empty nor an earlier study (which would be overwritten), when it cannot
  // be written, or when another builder is at work there.
  explicit OutputFolder(std::filesystem::path output);
  ~OutputFolder();
  OutputFolder(const OutputFolder&) = delete;
  OutputFolder& operator=(const OutputFolder&) = delete;

  // Throws StudyError when `input` is the output folder, or one of the two lies in the other: a build would overwrite
  // what it reads.
  void refuseInput(const std::filesystem::path& input) const;

  // Makes the folder to write to, and those above it. Throws StudyError.
  const std::filesystem::path& openDraft();
  // Where to write, once it is open.
  [[nodiscard]] const std::filesystem::path& draft() const { return draft_; }

  // Puts the study in its place, with its mark. Files that the earlier study did not have, such as the program itself,
  // are kept; files that have not changed are left as they are, with their times. On failure (StudyError) the output is
  // as it was.
  void commit();

  // Why writing failed, where the disk is full: how much was written, and what to do. Empty: it is not.
  [[nodiscard]] std::string whyFull() const;

 private:
  void lock();
  void recover() const;
  void removeDraft() noexcept;

  std::filesystem::path output_;
  std::filesystem::path draft_;
  std::filesystem::path made_;  // the first folder that had to be made; empty: none
  int lock_ = -1;
  bool isOpen_ = false;
};

}  // namespace study
