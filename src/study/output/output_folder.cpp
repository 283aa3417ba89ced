#include "study/output/output_folder.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>
#include <vector>

#include "study/model/study_error.h"

namespace study {

namespace fs = std::filesystem;

namespace {

bool mayBeReplaced(const fs::path& output) {
  if (!fs::exists(output)) return true;
  if (!fs::is_directory(output)) return false;
  return fs::is_empty(output) || fs::is_regular_file(output / kStudyMark);
}

// Moves that are taken back unless all of them were made.
class Moves {
 public:
  ~Moves() {
    std::error_code ignored;
    for (auto move = done_.rbegin(); move != done_.rend(); ++move) fs::rename(move->second, move->first, ignored);
  }

  void make(const fs::path& from, const fs::path& to) {
    fs::rename(from, to);
    done_.emplace_back(from, to);
  }
  void keep() { done_.clear(); }

 private:
  std::vector<std::pair<fs::path, fs::path>> done_;
};

bool haveEqualBytes(const fs::path& one, const fs::path& other) {
  if (fs::file_size(one) != fs::file_size(other)) return false;
  std::ifstream first(one, std::ios::binary);
  std::ifstream second(other, std::ios::binary);
  using Bytes = std::istreambuf_iterator<char>;
  return first && second && std::equal(Bytes(first), Bytes(), Bytes(second));
}

// Files that are as they were keep their time, so that nobody takes them for new.
void keepTimes(const fs::path& draft, const fs::path& output) {
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(draft)) {
    const fs::path earlier = output / fs::relative(entry.path(), draft);
    if (!entry.is_regular_file() || !fs::is_regular_file(earlier)) continue;
    if (haveEqualBytes(entry.path(), earlier)) fs::last_write_time(entry.path(), fs::last_write_time(earlier));
  }
}

fs::path beside(const fs::path& output, const char* ending) {
  fs::path path = output;
  path += ending;
  return path;
}

}  // namespace

OutputFolder::OutputFolder(fs::path output) {
  output_ = fs::absolute(std::move(output)).lexically_normal();
  if (output_.filename().empty()) output_ = output_.parent_path();  // a trailing separator
  draft_ = beside(output_, ".part");
  try {
    if (!mayBeReplaced(output_)) {
      throw StudyError(output_.string() + " is there already and is no study; choose a new or an empty folder");
    }
    fs::remove_all(draft_);
    fs::create_directories(draft_);
  } catch (const fs::filesystem_error& error) {
    throw StudyError(std::string("the output folder cannot be used: ") + error.what());
  }
}

OutputFolder::~OutputFolder() {
  std::error_code ignored;
  fs::remove_all(draft_, ignored);
}

void OutputFolder::commit() {
  try {
    const fs::path earlier = beside(output_, ".earlier");
    fs::remove_all(earlier);
    fs::create_directories(output_);
    fs::create_directories(earlier);
    keepTimes(draft_, output_);
    std::vector<fs::path> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(draft_)) names.push_back(entry.path().filename());
    {
      Moves moves;
      for (const fs::path& name : names) {
        if (fs::exists(output_ / name)) moves.make(output_ / name, earlier / name);
        moves.make(draft_ / name, output_ / name);
      }
      moves.keep();
    }
    fs::remove_all(earlier);
  } catch (const fs::filesystem_error& error) {
    throw StudyError(std::string("the study could not be put in its place: ") + error.what());
  }
}

}  // namespace study
