#include "motor/tables/declared_columns.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <sstream>
#include <string>

#include "text/utf8.h"

namespace motor {
namespace {

// The number behind `Fields` or `Columns`, or 0.
std::size_t columnCount(const std::string& line) {
  std::istringstream words(line);
  std::string keyword;
  std::size_t count = 0;
  words >> keyword >> count;
  const bool counts = text::equalsIgnoringCase(keyword, "fields") || text::equalsIgnoringCase(keyword, "columns");
  return counts && words ? count : 0;
}

constexpr std::string_view kBlanks = " \t\r";

// The type in a column's line, `name type (...)`: where it begins and ends.
struct TypePlace {
  std::size_t begin;
  std::size_t end;
};

TypePlace typePlace(const std::string& line) {
  const std::size_t name = std::min(line.find_first_not_of(kBlanks), line.size());
  const std::size_t nameEnd = std::min(line.find_first_of(kBlanks, name), line.size());
  const std::size_t begin = std::min(line.find_first_not_of(kBlanks, nameEnd), line.size());
  std::size_t end = begin;
  while (end < line.size() && std::isalnum(static_cast<unsigned char>(line[end])) != 0) ++end;
  return {begin, end};
}

// The first bytes of a file, in which the columns stand.
std::string headOf(const std::filesystem::path& file) {
  constexpr std::uintmax_t kLongest = 256 * 1024;
  std::error_code missing;
  const std::uintmax_t size = std::filesystem::file_size(file, missing);
  if (missing) return {};
  std::string head(static_cast<std::size_t>(std::min(size, kLongest)), '\0');
  std::ifstream(file, std::ios::binary).read(head.data(), static_cast<std::streamsize>(head.size()));
  return head;
}

}  // namespace

std::vector<std::string> declaredTypes(const std::filesystem::path& file) {
  std::istringstream input(headOf(file));
  std::vector<std::string> types;
  std::string line;
  std::size_t count = 0;
  while (count == 0 && std::getline(input, line)) count = columnCount(line);
  while (types.size() < count && std::getline(input, line)) {
    const TypePlace place = typePlace(line);
    types.push_back(text::lower(line.substr(place.begin, place.end - place.begin)));
  }
  return types;
}

std::string withLargeIntegersAs(const std::string& type, const std::string& definition) {
  std::string result;
  std::size_t columnsLeft = 0;
  bool declared = false;
  for (std::size_t begin = 0; begin < definition.size();) {
    const std::size_t end = std::min(definition.find('\n', begin), definition.size());
    std::string line = definition.substr(begin, end - begin);
    if (columnsLeft > 0) {
      --columnsLeft;
      const TypePlace place = typePlace(line);
      const bool isLarge = text::equalsIgnoringCase(line.substr(place.begin, place.end - place.begin), "largeint");
      if (isLarge) line.replace(place.begin, place.end - place.begin, type);
    } else if (!declared) {
      columnsLeft = columnCount(line);
      declared = columnsLeft > 0;
    }
    result += line;
    begin = end + 1;
    if (end == definition.size()) break;
    result += '\n';
    if (!declared || columnsLeft > 0) continue;
    return result + definition.substr(begin);  // what follows the last column stays as it is
  }
  return result;
}

}  // namespace motor
