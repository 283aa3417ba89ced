#pragma once

#include <string>
#include <vector>

namespace screen {

// A kind of file that a dialog offers: "Páginas web" and "*.htm;*.html".
struct FileFilter {
  std::string description;
  std::string patterns;
};

// The kinds of a filter written as "description|patterns|description|patterns". Where only the description is a pattern
// the two have changed places. A description with its patterns in brackets loses them.
[[nodiscard]] std::vector<FileFilter> fileFilters(const std::string& filter);

}  // namespace screen
