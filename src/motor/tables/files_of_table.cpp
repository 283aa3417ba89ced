#include "motor/tables/files_of_table.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <string>

#include "motor/tables/read_failure.h"
#include "platform/paths.h"
#include "text/file_text.h"
#include "text/utf8.h"

namespace motor {
namespace {

namespace fs = std::filesystem;

constexpr std::array kBesideTab = {".dat", ".dbf", ".map", ".id", ".ind"};
constexpr std::array kBesideMif = {".mid"};

std::string endingOf(const fs::path& file) { return text::lower(text::fromPath(file.extension())); }

bool isTab(const fs::path& file) { return endingOf(file) == ".tab"; }

bool stands(const auto& endings, const std::string& ending) {
  return std::find(endings.begin(), endings.end(), ending) != endings.end();
}

// The head that data files begin with: how many rows they have, and how long these and the head are, lowest byte first.
struct DataHead {
  std::uintmax_t rows;
  std::uintmax_t length;
  std::uintmax_t rowLength;
};

DataHead headOf(const fs::path& data) {
  std::array<unsigned char, 12> bytes{};
  std::ifstream(data, std::ios::binary).read(reinterpret_cast<char*>(bytes.data()), bytes.size());
  const auto number = [&](std::size_t first, std::size_t count) {
    std::uintmax_t value = 0;
    while (count-- > 0) value = value << 8U | bytes[first + count];
    return value;
  };
  return {number(4, 4), number(8, 2), number(10, 2)};
}

bool hasItsRows(const fs::path& data) {
  std::error_code ignored;
  const DataHead head = headOf(data);
  return head.length + head.rows * head.rowLength <= fs::file_size(data, ignored);
}

}  // namespace

std::vector<fs::path> filesOfTable(const fs::path& file) {
  std::vector<fs::path> files{file};
  const std::string name = platform::foldedFileName(text::fromPath(file.stem()));
  const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
  std::error_code failed;
  for (fs::directory_iterator entry(folder, failed); !failed && entry != fs::directory_iterator();
       entry.increment(failed)) {
    const fs::path& other = entry->path();
    const std::string ending = endingOf(other);
    if (!(isTab(file) ? stands(kBesideTab, ending) : stands(kBesideMif, ending))) continue;
    if (platform::foldedFileName(text::fromPath(other.stem())) == name) files.push_back(other);
  }
  std::sort(files.begin() + 1, files.end());
  return files;
}

void refuseUnreadable(const fs::path& file) {
  std::error_code ignored;
  if (!fs::is_regular_file(file, ignored)) failMissing(file);
  bool hasData = false;
  for (const fs::path& each : filesOfTable(file)) {
    if (!fs::is_regular_file(each, ignored)) failDamaged(file);
    const std::string ending = endingOf(each);
    // A table has its rows in one of the two; ".dat" stands before ".dbf".
    const bool isData = ending == ".dat" || (ending == ".dbf" && !hasData);
    hasData = hasData || isData;
    if (isData && !hasItsRows(each)) failDamaged(file);
  }
}

}  // namespace motor
