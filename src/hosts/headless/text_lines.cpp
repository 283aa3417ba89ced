#include "hosts/headless/text_lines.h"

#include <stdexcept>
#include <string>

namespace headless {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view trimmed(std::string_view line) {
  const std::size_t begin = line.find_first_not_of(" \t\r");
  if (begin == std::string_view::npos) return {};
  return line.substr(begin, line.find_last_not_of(" \t\r") - begin + 1);
}

}  // namespace

void forEachTextLine(std::string_view file, const std::function<void(std::string_view line)>& use) {
  if (file.starts_with(kByteOrderMark)) file.remove_prefix(kByteOrderMark.size());
  std::size_t at = 0;
  for (int number = 1; at < file.size(); ++number) {
    const std::size_t end = std::min(file.find('\n', at), file.size());
    const std::string_view line = trimmed(file.substr(at, end - at));
    at = end + 1;
    if (line.empty() || line.front() == '#') continue;
    try {
      use(line);
    } catch (const std::invalid_argument& problem) {
      throw std::invalid_argument("line " + std::to_string(number) + ": " + problem.what());
    }
  }
}

}  // namespace headless
