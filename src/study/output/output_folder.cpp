#include "study/output/output_folder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <system_error>
#include <utility>

#include "study/model/study_error.h"
#include "study/output/folder_swap.h"

namespace study {

namespace fs = std::filesystem;

namespace {

constexpr const char* kMarkLine = "Mortalidad en Veldoria 1999-2002";
constexpr const char* kDraft = "nuevo";
constexpr std::uintmax_t kFullBelow = 1'000'000;  // bytes left on a disk that is as good as full

std::string firstLine(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::string line;
  std::getline(in, line);
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

bool isMarked(const fs::path& folder) { return firstLine(folder / kStudyMark) == kMarkLine; }

void writeMark(const fs::path& folder) {
  std::ofstream mark(folder / kStudyMark, std::ios::binary);
  mark << kMarkLine
       << "\r\n\r\n"
          "Esta carpeta contiene los datos de un estudio de mortalidad. Se puede volver a generar:\r\n"
          "lo que haya en sus carpetas Tablas, Archivos y Ayuda se sustituye entonces.\r\n";
  mark.close();
  if (!mark) throw StudyError("the file " + (folder / kStudyMark).string() + " could not be written");
}

bool holdsOnly(const fs::path& folder, const char* name) {
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (entry.path().filename() != name) return false;
  }
  return true;
}

// An earlier study, an empty folder, or one in which a builder was killed: the first one, or one that was moving the
// mark.
bool mayBeReplaced(const fs::path& output) {
  if (!fs::exists(output)) return true;
  if (!fs::is_directory(output)) return false;
  if (isMarked(output) || fs::is_empty(output)) return true;
  const fs::path work = output / kWorkFolder;
  return isMarked(work) && (holdsOnly(output, kWorkFolder) || FolderSwap(work, work / kDraft, output).hasBegun());
}

// The nearest folder above that is there.
fs::path existingAncestor(fs::path path) {
  while (!fs::exists(path) && path.has_relative_path()) path = path.parent_path();
  return path;
}

// The uppermost folder that has to be made for `folder`; empty: it is there.
fs::path firstMissing(fs::path folder) {
  fs::path missing;
  while (!fs::exists(folder) && folder.has_relative_path()) {
    missing = folder;
    folder = folder.parent_path();
  }
  return missing;
}

bool isWithin(const fs::path& inner, const fs::path& outer) {
  auto at = inner.begin();
  for (const fs::path& part : outer) {
    if (at == inner.end() || *at++ != part) return false;
  }
  return true;
}

bool isSameFile(int descriptor, const fs::path& path) {
  struct stat opened = {};
  struct stat there = {};
  return fstat(descriptor, &opened) == 0 && stat(path.c_str(), &there) == 0 && opened.st_ino == there.st_ino &&
         opened.st_dev == there.st_dev;
}

std::uintmax_t bytesBelow(const fs::path& folder) {
  std::uintmax_t bytes = 0;
  std::error_code error;
  for (fs::recursive_directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    std::error_code ignored;
    if (at->is_regular_file(ignored)) bytes += at->file_size(ignored);
  }
  return bytes;
}

}  // namespace

OutputFolder::OutputFolder(fs::path output) {
  try {
    output_ = fs::weakly_canonical(fs::absolute(std::move(output)));
    if (output_.filename().empty()) output_ = output_.parent_path();  // a trailing separator
    draft_ = output_ / kWorkFolder / kDraft;
    if (!mayBeReplaced(output_)) {
      throw StudyError(output_.string() + " is there already and is no study; choose a new or an empty folder");
    }
    const fs::path nearest = existingAncestor(output_);
    if (!fs::is_directory(nearest)) throw StudyError(nearest.string() + " is no folder; choose another output folder");
    if (access(nearest.c_str(), W_OK | X_OK) != 0) {
      throw StudyError("nothing may be written to " + nearest.string() + "; choose another output folder");
    }
    if (!fs::exists(output_)) return;
    lock();
    recover();
  } catch (const fs::filesystem_error& error) {
    throw StudyError(std::string("the output folder cannot be used: ") + error.what());
  }
}

OutputFolder::~OutputFolder() {
  if (isOpen_) removeDraft();
  if (lock_ >= 0) close(lock_);
}

void OutputFolder::lock() {
  while (true) {
    lock_ = open(output_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (lock_ < 0) throw StudyError("the output folder cannot be used: " + output_.string());
    // A disk that knows no locks is used without.
    if (flock(lock_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
      close(lock_);
      lock_ = -1;
      throw StudyError("another study is being made in " + output_.string() + "; wait until it is done");
    }
    if (isSameFile(lock_, output_)) return;
    close(lock_);  // removed by the one who had it locked
    lock_ = -1;
    fs::create_directories(output_);
  }
}

// What a killed builder has left.
void OutputFolder::recover() const {
  const fs::path work = output_ / kWorkFolder;
  if (!fs::exists(work)) return;
  if (!isMarked(work)) {
    throw StudyError(work.string() + " is not a folder of the study builder's; move it elsewhere");
  }
  FolderSwap(work, draft_, output_).finish();
  fs::remove_all(work);
}

void OutputFolder::refuseInput(const fs::path& input) const {
  const fs::path canonical = fs::weakly_canonical(fs::absolute(input));
  const fs::path folder = canonical.filename().empty() ? canonical.parent_path() : canonical;
  if (!isWithin(folder, output_) && !isWithin(output_, folder)) return;
  throw StudyError("the output folder " + output_.string() + " and the input folder " + folder.string() +
                   " are one, or one lies in the other; choose an output folder beside the input");
}

const fs::path& OutputFolder::openDraft() {
  const fs::path work = output_ / kWorkFolder;
  try {
    made_ = firstMissing(output_);
    fs::create_directories(output_);
    if (lock_ < 0) {
      lock();
      recover();
    }
    isOpen_ = true;
    fs::create_directory(work);
    writeMark(work);
    fs::create_directories(draft_);
  } catch (const fs::filesystem_error& error) {
    removeDraft();
    throw StudyError(std::string("the output folder cannot be used: ") + error.what());
  }
  return draft_;
}

void OutputFolder::removeDraft() noexcept {
  isOpen_ = false;
  std::error_code ignored;
  fs::remove_all(output_ / kWorkFolder, ignored);
  if (made_.empty()) return;
  // Only as far as they are empty.
  for (fs::path folder = output_; fs::remove(folder, ignored) && folder != made_;) folder = folder.parent_path();
  made_.clear();
}

void OutputFolder::commit() {
  try {
    writeMark(draft_);
    FolderSwap swap(output_ / kWorkFolder, draft_, output_);
    swap.keepUnchangedFiles();
    swap.begin();
    swap.finish();
    made_.clear();
    removeDraft();
  } catch (const fs::filesystem_error& error) {
    throw StudyError(std::string("the study could not be put in its place: ") + error.what());
  }
}

std::string OutputFolder::whyFull() const {
  std::error_code error;
  const fs::space_info space = fs::space(output_, error);
  if (error || space.available >= kFullBelow) return {};
  constexpr std::uintmax_t kMegabyte = 1'000'000;
  return "the disk of " + output_.string() +
         " is full: " + std::to_string((bytesBelow(draft_) + kMegabyte / 2) / kMegabyte) +
         " MB were written when there was no room left; make room for several times as much, for the earlier study "
         "stays until the new one is complete";
}

}  // namespace study
