#pragma once

#include <functional>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace studytest {

// A row of a query's result.
class ResultRow {
 public:
  explicit ResultRow(sqlite3_stmt* statement) : statement_(statement) {}

  [[nodiscard]] std::string text(int column) const;
  [[nodiscard]] double number(int column) const;
  [[nodiscard]] long count(int column) const;
  [[nodiscard]] bool isNull(int column) const;

 private:
  sqlite3_stmt* statement_;
};

// A database in memory. Everything throws std::runtime_error when it fails.
class Database {
 public:
  Database();
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  // Statements, semicolons between them.
  void run(const std::string& statements);
  // A new table of the columns of the first row, filled with the others. Digits alone become integers.
  void load(const std::string& table, const std::vector<std::vector<std::string>>& rows);

  // One query; texts are bound to its question marks.
  void each(const std::string& query, const std::vector<std::string>& values,
            const std::function<void(const ResultRow&)>& use) const;

 private:
  [[noreturn]] void fail(const std::string& what) const;
  [[nodiscard]] sqlite3_stmt* prepared(const std::string& query) const;

  sqlite3* database_ = nullptr;
};

}  // namespace studytest
