#include "study/output/folder_swap.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>
#include <utility>

namespace study {

namespace fs = std::filesystem;

namespace {

bool haveEqualBytes(const fs::path& one, const fs::path& other) {
  if (fs::file_size(one) != fs::file_size(other)) return false;
  std::ifstream first(one, std::ios::binary);
  std::ifstream second(other, std::ios::binary);
  using Bytes = std::istreambuf_iterator<char>;
  return first && second && std::equal(Bytes(first), Bytes(), Bytes(second));
}

// Where the disk has no second names for files, the draft's gets the other's time.
void makeTheSame(const fs::path& file, const fs::path& earlier) {
  fs::path link = file;
  link += ".mismo";
  std::error_code error;
  fs::create_hard_link(earlier, link, error);
  if (!error) {
    fs::rename(link, file);
  } else {
    fs::last_write_time(file, fs::last_write_time(earlier));
  }
}

}  // namespace

FolderSwap::FolderSwap(fs::path work, fs::path draft, fs::path output)
    : journal_(work / "cambio.txt"),
      earlier_(std::move(work) / "anterior"),
      draft_(std::move(draft)),
      output_(std::move(output)) {}

void FolderSwap::keepUnchangedFiles() const {
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(draft_)) {
    const fs::path earlier = output_ / fs::relative(entry.path(), draft_);
    if (!entry.is_regular_file() || !fs::is_regular_file(fs::symlink_status(earlier))) continue;
    if (haveEqualBytes(entry.path(), earlier)) makeTheSame(entry.path(), earlier);
  }
}

bool FolderSwap::hasBegun() const { return fs::exists(journal_); }

void FolderSwap::begin() const {
  fs::create_directories(earlier_);
  fs::path unfinished = journal_;
  unfinished += ".nuevo";
  std::ofstream out(unfinished, std::ios::binary);
  for (const fs::directory_entry& entry : fs::directory_iterator(draft_)) {
    out << entry.path().filename().string() << '\n';
  }
  out.close();
  if (!out) {
    throw fs::filesystem_error("the journal cannot be written", unfinished, std::make_error_code(std::errc::io_error));
  }
  fs::rename(unfinished, journal_);
}

// A name that the draft has no longer is in its place.
std::vector<FolderSwap::Move> FolderSwap::missingMoves() const {
  std::vector<Move> moves;
  std::ifstream in(journal_, std::ios::binary);
  for (std::string name; std::getline(in, name);) {
    if (!fs::exists(fs::symlink_status(draft_ / name))) continue;
    if (fs::exists(fs::symlink_status(output_ / name))) moves.push_back({output_ / name, earlier_ / name});
    moves.push_back({draft_ / name, output_ / name});
  }
  return moves;
}

void FolderSwap::takeBack() const {
  std::vector<std::string> names;
  std::ifstream in(journal_, std::ios::binary);
  for (std::string name; std::getline(in, name);) names.push_back(name);
  std::error_code ignored;
  for (const std::string& name : names) {
    if (!fs::exists(draft_ / name)) fs::rename(output_ / name, draft_ / name, ignored);
    if (fs::exists(earlier_ / name)) fs::rename(earlier_ / name, output_ / name, ignored);
  }
  fs::remove(journal_, ignored);
}

void FolderSwap::finish() const {
  if (!hasBegun()) return;
  try {
    for (const Move& move : missingMoves()) fs::rename(move.from, move.to);
  } catch (const fs::filesystem_error&) {
    takeBack();
    throw;
  }
  fs::remove(journal_);
}

}  // namespace study
