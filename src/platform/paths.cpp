#include "platform/paths.h"

#include <optional>
#include <system_error>
#include <vector>

#include "text/file_text.h"
#include "text/utf8.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

bool isSeparator(char c) { return c == '\\' || c == '/'; }

std::vector<std::string> namesIn(std::string_view path) {
  std::vector<std::string> names;
  std::size_t begin = 0;
  while (begin < path.size()) {
    std::size_t end = begin;
    while (end < path.size() && !isSeparator(path[end])) ++end;
    if (end > begin) names.emplace_back(path.substr(begin, end - begin));
    begin = end + 1;
  }
  return names;
}

// The name in a folder that `name` means; the first in byte order when several differ from it only by case.
std::optional<std::string> findName(const std::string& folder, const std::string& name) {
  std::error_code ignored;
  if (fs::exists(text::toPath(folder + name), ignored)) return name;
  const std::string wanted = foldedFileName(name);
  std::optional<std::string> best;
  const fs::directory_iterator end;
  for (fs::directory_iterator entry(folder.empty() ? fs::path(".") : text::toPath(folder), ignored);
       !ignored && entry != end; entry.increment(ignored)) {
    std::string candidate = text::fromPath(entry->path().filename());
    if (foldedFileName(candidate) == wanted && (!best || candidate < *best)) best = std::move(candidate);
  }
  return best;
}

}  // namespace

fs::path machinePath(std::string_view path) {
  std::string done;
  for (std::size_t i = 0; i < path.size() && i < 2 && isSeparator(path[i]); ++i) done += '/';
  const std::vector<std::string> names = namesIn(path);
  bool exists = true;
  for (std::size_t i = 0; i < names.size(); ++i) {
    std::optional<std::string> found;
    if (exists) found = findName(done, names[i]);
    exists = found.has_value();
    done += found.value_or(names[i]);
    if (i + 1 < names.size()) done += '/';
  }
  return text::toPath(done);
}

std::string foldedFileName(std::string_view name) { return text::lower(text::compose(name)); }

}  // namespace platform
