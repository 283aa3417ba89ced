#include "hosts/headless/headless_files.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/paths.h"
#include "text/failure.h"
#include "text/file_text.h"

namespace headless {
namespace {

namespace fs = std::filesystem;

std::string folded(const std::string& path) {
  std::string result = platform::foldedFileName(path);
  std::ranges::replace(result, '/', '\\');
  return result;
}

}  // namespace

std::string lastName(const std::string& path) {
  const std::size_t separator = path.find_last_of("\\/");
  return separator == std::string::npos ? path : path.substr(separator + 1);
}

void HeadlessFiles::pretendFile(const std::string& path) { pretended_[folded(path)] = lastName(path); }

void HeadlessFiles::pretendNoFile(const std::string& path) { pretended_[folded(path)] = ""; }

std::string HeadlessFiles::lookUp(const std::string& path) {
  const auto pretended = pretended_.find(folded(path));
  if (pretended != pretended_.end()) return pretended->second;
  const fs::path found = platform::machinePath(path);
  std::error_code ignored;
  const bool isFile = fs::exists(found, ignored) && !fs::is_directory(found, ignored);
  return isFile ? text::fromPath(found.filename()) : "";
}

std::vector<std::string> HeadlessFiles::folders(const std::string& path) {
  std::vector<std::string> names;
  std::error_code ignored;
  const fs::directory_iterator end;
  for (fs::directory_iterator entry(platform::machinePath(path), ignored); !ignored && entry != end;
       entry.increment(ignored)) {
    if (entry->is_directory(ignored)) names.push_back(text::fromPath(entry->path().filename()));
  }
  return names;
}

void HeadlessFiles::copy(const std::string& from, const std::string& to) {
  const auto pretended = pretended_.find(folded(from));
  const fs::path source = platform::machinePath(from);
  std::error_code problem;
  const bool isMissing =
      (pretended != pretended_.end() && pretended->second.empty()) || !fs::is_regular_file(source, problem);
  if (isMissing) throw failures::fileNotFound();
  const fs::path target = platform::machinePath(to);
  const bool existed = fs::exists(target, problem);
  fs::copy_file(source, target, fs::copy_options::overwrite_existing, problem);
  if (!problem) return;
  std::error_code ignored;
  if (!existed) fs::remove(target, ignored);
  throw failures::pathAccess();
}

}  // namespace headless
