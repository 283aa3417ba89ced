#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace figures {

// The study's tables of one year in an indexed SQLite database in memory, read through GDAL.
class SqliteStudy {
 public:
  SqliteStudy(const std::filesystem::path& yearFolder, const std::string& year);

  [[nodiscard]] sqlite3* database() const { return database_.get(); }

  struct Close {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  using Statement = std::unique_ptr<sqlite3_stmt, Close>;
  [[nodiscard]] Statement prepare(const std::string& sql) const;
  void run(const std::string& sql) const;

 private:
  void copyTable(const std::filesystem::path& file, const std::string& name);

  std::unique_ptr<sqlite3, Close> database_;
};

// Reads every feature of the tables with GDAL alone, fields and geometry; returns how many points there were.
[[nodiscard]] std::size_t readWithGdal(const std::vector<std::filesystem::path>& files);

}  // namespace figures
