#include "hosts/headless/wildcard.h"

namespace headless {

bool matchesWildcard(std::string_view pattern, std::string_view s) {
  std::size_t inPattern = 0;
  std::size_t inText = 0;
  std::size_t star = std::string_view::npos;  // the last star met, and where the text stood then
  std::size_t resume = 0;
  while (inText < s.size()) {
    if (inPattern < pattern.size() && pattern[inPattern] == '*') {
      star = inPattern++;
      resume = inText;
    } else if (inPattern < pattern.size() && pattern[inPattern] == s[inText]) {
      ++inPattern;
      ++inText;
    } else if (star != std::string_view::npos) {
      inPattern = star + 1;
      inText = ++resume;
    } else {
      return false;
    }
  }
  while (inPattern < pattern.size() && pattern[inPattern] == '*') ++inPattern;
  return inPattern == pattern.size();
}

}  // namespace headless
