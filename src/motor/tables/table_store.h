#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "motor/tables/base_table.h"

namespace motor {

// The tables of the process, each read once and shared read-only between sessions. A file that has changed (size or
// time, its own or that of the files beside it or of its parts) is read again. A table nobody holds any more is kept
// for the next session.
class TableStore {
 public:
  static TableStore& shared();

  // Whether a file may be read.
  using MayRead = std::function<bool(const std::filesystem::path&)>;

  // The table in a TAB or MIF file (machine path), and in the files beside it and those that it is put together from,
  // each of which is one that `mayRead`. Throws EngineError with a clear message when it cannot be read.
  [[nodiscard]] std::shared_ptr<const BaseTable> open(
      const std::filesystem::path& file, const MayRead& mayRead = [](const auto&) { return true; });

  // Forgets everything that nobody holds.
  void clear();
  // How many tables are kept.
  [[nodiscard]] std::size_t size();

 private:
  // Size and time of one file; equal for a file that has not changed.
  struct Stamp {
    std::uintmax_t size = 0;
    std::filesystem::file_time_type time;
    bool operator==(const Stamp&) const = default;
  };
  struct Entry {
    std::vector<std::filesystem::path> read;   // the files it was read from, besides its own
    std::vector<std::filesystem::path> files;  // its own, those beside it and those of its parts, there or not
    std::vector<Stamp> stamps;
    std::shared_ptr<const BaseTable> table;
  };

  [[nodiscard]] static std::vector<Stamp> stampsOf(const std::vector<std::filesystem::path>& files);

  std::mutex mutex_;
  std::map<std::filesystem::path, Entry> entries_;  // by canonical path
};

}  // namespace motor
