#include "motor/tables/seamless_parts.h"

#include <algorithm>
#include <atomic>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>

#include "motor/tables/gdal.h"
#include "motor/tables/memory_file.h"
#include "motor/tables/ogr_errors.h"
#include "motor/tables/read_failure.h"
#include "platform/paths.h"
#include "text/utf8.h"

namespace motor {
namespace {

namespace fs = std::filesystem;

std::string utf8Of(const fs::path& path) {
  const std::u8string s = path.u8string();
  return {s.begin(), s.end()};
}

struct Definition {
  std::string text;  // without what makes the table a seamless one
  bool isSeamless = false;
};

Definition definitionOf(const fs::path& file) {
  constexpr std::uintmax_t kLongest = 4 * 1024 * 1024;  // bytes
  std::error_code ignored;
  if (fs::is_regular_file(file, ignored) && fs::file_size(file, ignored) > kLongest) failDamaged(file);
  Definition definition;
  std::istringstream lines(bytesOf(file));
  std::string line;
  while (std::getline(lines, line)) {
    if (text::lower(line).find("\"\\isseamless\" = \"true\"") == std::string::npos) {
      definition.text += line + "\n";
    } else {
      definition.isSeamless = true;
    }
  }
  return definition;
}

// The words of a line, a quoted one without its quotes.
std::vector<std::string> wordsOf(const std::string& line) {
  char** const words = gdal().CSLTokenizeStringComplex(line.c_str(), " \t(),;\r", TRUE, FALSE);
  std::vector<std::string> copies;
  for (char** word = words; word != nullptr && *word != nullptr; ++word) copies.emplace_back(*word);
  gdal().CSLDestroy(words);
  return copies;
}

// The tables that a view's lines `Open Table "name" Hide` speak of, which lie beside it or are named from there.
std::vector<fs::path> viewTables(const fs::path& file) {
  if (text::lower(utf8Of(file.extension())) != ".tab") return {};
  std::vector<fs::path> tables;
  std::istringstream lines(bytesOf(file));
  std::string line;
  while (std::getline(lines, line)) {
    const std::vector<std::string> words = wordsOf(line);
    if (words.size() < 3 || !text::equalsIgnoringCase(words[0], "open") || !text::equalsIgnoringCase(words[1], "table"))
      continue;
    std::string name = words[2];
    if (!text::lower(name).ends_with(".tab")) name += ".tab";
    tables.push_back(platform::machinePath(utf8Of(file.parent_path()) + "/" + name));
  }
  return tables;
}

}  // namespace

std::vector<fs::path> allParts(const fs::path& file, const std::function<bool(const fs::path&)>& mayRead) {
  std::vector<fs::path> parts{file};
  for (std::size_t next = 0; next < parts.size(); ++next) {
    for (const auto& named : {seamlessParts(parts[next]), viewTables(parts[next])}) {
      for (const fs::path& part : named) {
        if (!mayRead(part)) failForbidden(part);
        if (std::find(parts.begin(), parts.end(), part) == parts.end()) parts.push_back(part);
      }
    }
  }
  parts.erase(parts.begin());
  return parts;
}

// The list of parts is a table like any other, whose first column names them; it is read as such from a copy in memory.
std::vector<fs::path> seamlessParts(const fs::path& file) {
  if (text::lower(utf8Of(file.extension())) != ".tab") return {};
  const Definition definition = definitionOf(file);
  if (!definition.isSeamless) return {};
  const OgrErrors quiet;
  const fs::path data = platform::machinePath(utf8Of(fs::path(file).replace_extension(".dat")));
  static std::atomic<int> copies = 0;
  const std::string name = "/vsimem/seamless_" + std::to_string(++copies);
  const MemoryFile tabCopy(name + ".tab", definition.text);
  const MemoryFile dataCopy(name + ".dat", bytesOf(data));
  const Gdal& library = gdal();
  const GdalDataset dataset(
      library.GDALOpenEx((name + ".tab").c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY, nullptr, nullptr, nullptr));
  if (!dataset) failDamaged(file);
  const OGRLayerH layer = library.GDALDatasetGetLayer(dataset.get(), 0);
  if (library.OGR_FD_GetFieldCount(library.OGR_L_GetLayerDefn(layer)) == 0) failDamaged(file);
  std::vector<fs::path> parts;
  std::set<fs::path> known;
  while (const GdalFeature row{library.OGR_L_GetNextFeature(layer)}) {
    parts.push_back(
        platform::machinePath(utf8Of(file.parent_path()) + "/" + library.OGR_F_GetFieldAsString(row.get(), 0)));
    if (!known.insert(parts.back()).second) failDamaged(file);
  }
  if (parts.empty() || quiet.failed()) failDamaged(file);
  return parts;
}

}  // namespace motor
