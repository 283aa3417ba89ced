#pragma once

#include <filesystem>
#include <string>

namespace motor {

// All of a file; nothing of one that cannot be read, or that is a pipe or a device.
[[nodiscard]] std::string bytesOf(const std::filesystem::path& file);

// A file in memory that the format library reads under a name (`/vsimem/...`), while this lives.
class MemoryFile {
 public:
  MemoryFile(std::string name, std::string bytes);
  ~MemoryFile();
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

 private:
  std::string name_;
  std::string bytes_;
};

}  // namespace motor
