#include "hosts/screen/file_filters.h"

#include <utility>

#include "text/utf8.h"

namespace screen {
namespace {

bool isPattern(const std::string& text) { return text.find_first_of("*?") != std::string::npos; }

std::vector<std::string> partsOf(const std::string& filter) {
  std::vector<std::string> parts(1);
  for (const char c : filter) {
    if (c == '|') {
      parts.emplace_back();
    } else {
      parts.back().push_back(c);
    }
  }
  return parts;
}

}  // namespace

std::vector<FileFilter> fileFilters(const std::string& filter) {
  const std::vector<std::string> parts = partsOf(filter);
  std::vector<FileFilter> filters;
  for (std::size_t i = 0; i + 1 < parts.size(); i += 2) {
    FileFilter row{parts[i], parts[i + 1]};
    if (isPattern(row.description) && !isPattern(row.patterns)) std::swap(row.description, row.patterns);
    row.description = text::trim(row.description.substr(0, row.description.find('(')));
    filters.push_back(std::move(row));
  }
  return filters;
}

}  // namespace screen
