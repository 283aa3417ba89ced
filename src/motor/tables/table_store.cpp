#include "motor/tables/table_store.h"

#include <array>

#include "motor/tables/files_of_table.h"
#include "motor/tables/read_failure.h"
#include "motor/tables/seamless_parts.h"
#include "platform/paths.h"

namespace motor {
namespace {

namespace fs = std::filesystem;

// The files that make up a table besides its own.
constexpr std::array kCompanions = {".dat", ".dbf", ".map", ".id", ".ind", ".mid"};

void addFilesOf(const fs::path& file, std::vector<fs::path>& files) {
  files.push_back(file);
  for (const char* extension : kCompanions) {
    const std::u8string name = fs::path(file).replace_extension(extension).u8string();
    fs::path companion = platform::machinePath(std::string(name.begin(), name.end()));
    if (companion != file) files.push_back(std::move(companion));
  }
}

// What reading a table reads besides its own file.
std::vector<fs::path> otherFiles(const fs::path& table, const std::vector<fs::path>& parts) {
  std::vector<fs::path> others = filesOfTable(table);
  others.erase(others.begin());
  for (const fs::path& part : parts) {
    const std::vector<fs::path> ofPart = filesOfTable(part);
    others.insert(others.end(), ofPart.begin(), ofPart.end());
  }
  return others;
}

void refuseForbidden(const std::vector<fs::path>& files, const TableStore::MayRead& mayRead) {
  for (const fs::path& file : files) {
    if (!mayRead(file)) failForbidden(file);
  }
}

}  // namespace

TableStore& TableStore::shared() {
  static TableStore store;
  return store;
}

std::shared_ptr<const BaseTable> TableStore::open(const fs::path& file, const MayRead& mayRead) {
  std::error_code error;
  fs::path key = fs::canonical(file, error);
  if (error) key = file;
  const std::scoped_lock lock(mutex_);
  if (const auto known = entries_.find(key); known != entries_.end()) {
    if (stampsOf(known->second.files) == known->second.stamps) {
      refuseForbidden(known->second.read, mayRead);
      return known->second.table;
    }
    entries_.erase(known);
  }
  Entry entry;
  const std::vector<fs::path> parts = allParts(key, mayRead);
  entry.read = otherFiles(key, parts);
  refuseForbidden(entry.read, mayRead);
  addFilesOf(key, entry.files);
  for (const fs::path& part : parts) addFilesOf(part, entry.files);
  entry.stamps = stampsOf(entry.files);
  entry.table = BaseTable::read(key);
  return entries_.emplace(std::move(key), std::move(entry)).first->second.table;
}

std::size_t TableStore::size() {
  const std::lock_guard lock(mutex_);
  return entries_.size();
}

void TableStore::clear() {
  const std::scoped_lock lock(mutex_);
  std::erase_if(entries_, [](const auto& entry) { return entry.second.table.use_count() == 1; });
}

std::vector<TableStore::Stamp> TableStore::stampsOf(const std::vector<fs::path>& files) {
  std::vector<Stamp> stamps;
  for (const fs::path& file : files) {
    std::error_code ignored;
    Stamp stamp;
    stamp.size = fs::file_size(file, ignored);
    stamp.time = fs::last_write_time(file, ignored);
    stamps.push_back(stamp);
  }
  return stamps;
}

}  // namespace motor
