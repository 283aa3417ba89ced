#include "database.h"

#include <sqlite3.h>

#include <memory>
#include <stdexcept>

namespace studytest {

namespace {

struct Finish {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finish>;

}  // namespace

std::string ResultRow::text(int column) const {
  const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
  return bytes == nullptr ? "" : bytes;
}

double ResultRow::number(int column) const { return sqlite3_column_double(statement_, column); }

long ResultRow::count(int column) const { return sqlite3_column_int64(statement_, column); }

bool ResultRow::isNull(int column) const { return sqlite3_column_type(statement_, column) == SQLITE_NULL; }

Database::Database() {
  if (sqlite3_open(":memory:", &database_) != SQLITE_OK) fail("no database");
}

Database::~Database() { sqlite3_close(database_); }

void Database::fail(const std::string& what) const {
  throw std::runtime_error(std::string(sqlite3_errmsg(database_)) + ": " + what);
}

sqlite3_stmt* Database::prepared(const std::string& query) const {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database_, query.c_str(), -1, &statement, nullptr) != SQLITE_OK) fail(query);
  return statement;
}

void Database::run(const std::string& statements) {
  if (sqlite3_exec(database_, statements.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) fail(statements);
}

void Database::load(const std::string& table, const std::vector<std::vector<std::string>>& rows) {
  std::string columns;
  std::string places;
  for (const std::string& column : rows.at(0)) {
    columns += (columns.empty() ? "\"" : ", \"") + column + "\" NUMERIC";
    places += places.empty() ? "?" : ", ?";
  }
  // Age groups stay the texts that they are: "0" is one.
  const std::size_t age = columns.find("\"age_group\" NUMERIC");
  if (age != columns.npos) columns.replace(age, 19, "\"age_group\" TEXT");
  run("BEGIN; CREATE TABLE " + table + " (" + columns + ")");
  const Statement insert(prepared("INSERT INTO " + table + " VALUES (" + places + ")"));
  for (std::size_t i = 1; i < rows.size(); ++i) {
    for (std::size_t field = 0; field < rows[i].size(); ++field) {
      sqlite3_bind_text(insert.get(), static_cast<int>(field) + 1, rows[i][field].c_str(), -1, SQLITE_STATIC);
    }
    if (sqlite3_step(insert.get()) != SQLITE_DONE) fail(table);
    sqlite3_reset(insert.get());
  }
  run("COMMIT");
}

void Database::each(const std::string& query, const std::vector<std::string>& values,
                    const std::function<void(const ResultRow&)>& use) const {
  const Statement statement(prepared(query));
  for (std::size_t i = 0; i < values.size(); ++i) {
    sqlite3_bind_text(statement.get(), static_cast<int>(i) + 1, values[i].c_str(), -1, SQLITE_STATIC);
  }
  int step = sqlite3_step(statement.get());
  for (; step == SQLITE_ROW; step = sqlite3_step(statement.get())) use(ResultRow(statement.get()));
  if (step != SQLITE_DONE) fail(query);
}

}  // namespace studytest
