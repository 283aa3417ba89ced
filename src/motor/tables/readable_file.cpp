#include "motor/tables/readable_file.h"

#include <algorithm>
#include <atomic>

#include "motor/tables/declared_columns.h"
#include "platform/paths.h"
#include "text/file_text.h"
#include "text/utf8.h"

namespace motor {

namespace {

namespace fs = std::filesystem;

bool hasLargeIntegers(const fs::path& file) {
  const std::vector<std::string> types = declaredTypes(file);
  return std::find(types.begin(), types.end(), "largeint") != types.end();
}

// The bytes of the file beside a table's that has another ending; nothing when there is none.
std::string besides(const fs::path& file, const char* ending) {
  return bytesOf(platform::machinePath(text::fromPath(fs::path(file).replace_extension(ending))));
}

}  // namespace

ReadableFile::ReadableFile(const fs::path& file) : name_(text::fromPath(file)) {
  if (!hasLargeIntegers(file)) return;
  static std::atomic<int> copies = 0;
  const std::string base = "/vsimem/large_" + std::to_string(++copies);
  const bool isMif = text::lower(text::fromPath(file.extension())) == ".mif";
  givesBits_ = !isMif;
  name_ = base + (isMif ? ".mif" : ".tab");
  copies_.push_back(
      std::make_unique<MemoryFile>(name_, withLargeIntegersAs(isMif ? "Decimal (20, 0)" : "Float", bytesOf(file))));
  for (const char* ending : {".mid", ".dat", ".map", ".id"}) {
    std::string bytes = besides(file, ending);
    if (!bytes.empty()) copies_.push_back(std::make_unique<MemoryFile>(base + ending, std::move(bytes)));
  }
}

}  // namespace motor
