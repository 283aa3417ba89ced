#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "motor/tables/memory_file.h"

namespace motor {

// A TAB or MIF file under a name that the format library can read: its own, or that of a copy in memory. It does not
// know columns of 64-bit numbers: in the copy those of a TAB file are declared as floating point numbers, which have
// the same length, and those of a MIF file as decimal ones.
class ReadableFile {
 public:
  explicit ReadableFile(const std::filesystem::path& file);

  [[nodiscard]] const std::string& name() const { return name_; }
  // Whether the 64-bit numbers come as floating point numbers of the same bits.
  [[nodiscard]] bool givesBits() const { return givesBits_; }

 private:
  std::string name_;
  bool givesBits_ = false;
  std::vector<std::unique_ptr<MemoryFile>> copies_;
};

}  // namespace motor
