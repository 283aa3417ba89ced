#include "motor/tables/declared_columns.h"

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

}  // namespace

std::vector<bool> declaredLogical(const std::filesystem::path& file, std::size_t count) {
  std::vector<bool> logical(count, false);
  std::ifstream input(file, std::ios::binary);
  std::string line;
  std::size_t declared = 0;
  while (declared == 0 && std::getline(input, line)) declared = columnCount(line);
  if (declared != count) return logical;
  for (std::size_t i = 0; i < count && std::getline(input, line); ++i) {
    std::istringstream words(line);
    std::string name;
    std::string type;
    words >> name >> type;
    logical[i] = text::equalsIgnoringCase(type.substr(0, type.find(';')), "logical");
  }
  return logical;
}

}  // namespace motor
