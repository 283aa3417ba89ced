#pragma once

#include <string>
#include <vector>

// The file system. Paths are written with "\"; the port turns them into the machine's own and matches folder and file
// names without regard to case.
namespace platform {

class Files {
 public:
  virtual ~Files() = default;

  // Directory look-up of one file by its full path, archive files included: the file's name as it is on the disk, or ""
  // when there is none (a folder is none).
  [[nodiscard]] virtual std::string lookUp(const std::string& path) = 0;

  // The names of the folders in a folder, in no particular order; none when it does not exist.
  [[nodiscard]] virtual std::vector<std::string> folders(const std::string& path) = 0;

  // Copies a file. Fails with 53 when `from` is missing, and with 75 when `from` cannot be read or `to` cannot be
  // written; a half-written copy is removed.
  virtual void copy(const std::string& from, const std::string& to) = 0;
};

}  // namespace platform
