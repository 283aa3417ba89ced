#include "motor/tables/memory_file.h"

#include <fstream>
#include <iterator>

#include "motor/tables/gdal.h"

namespace motor {

std::string bytesOf(const std::filesystem::path& file) {
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(file, ignored)) return {};
  std::ifstream input(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(input), {}};
}

MemoryFile::MemoryFile(std::string name, std::string bytes) : name_(std::move(name)), bytes_(std::move(bytes)) {
  gdal().VSIFCloseL(
      gdal().VSIFileFromMemBuffer(name_.c_str(), reinterpret_cast<GByte*>(bytes_.data()), bytes_.size(), FALSE));
}

MemoryFile::~MemoryFile() { gdal().VSIUnlink(name_.c_str()); }

}  // namespace motor
