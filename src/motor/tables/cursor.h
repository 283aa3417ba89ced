#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "motor/language/statements/fetch.h"
#include "motor/tables/table.h"

namespace motor {

// The current rows of a session's open tables and results. Names are matched without regard to case.
class Cursors {
 public:
  // Where a table stands.
  struct Cursor {
    TablePtr table;
    RowId row = 0;  // 0: no current row
    bool beyond = false;
  };

  // A table was opened or a name has got another table: its first row becomes the current one. With a result the first
  // tables behind it move along, here and at every fetch, as long as they are open under the names they had.
  void open(std::string_view name, TablePtr table);
  // Another name for a table that is open: it stands where the table stands under that name, and nothing moves.
  void openBeside(std::string_view name, std::string_view other);
  // A name has got another table with the same rows: it stays on its row, and nothing moves.
  void replace(std::string_view name, TablePtr table);
  void close(std::string_view name);

  // Moves to a row; deleted rows are skipped. Beyond the first or last row there is no current row any more. `record`
  // (from 1) counts with Target::record only: a row that does not exist or is deleted is an EngineError.
  void fetch(std::string_view name, Fetch::Target target, double record = 0);

  // Whether the last fetch went beyond the rows, or there are none.
  [[nodiscard]] bool atEnd(std::string_view name) const;

  // The current row. Throws EngineError when there is none.
  [[nodiscard]] RowId row(std::string_view name) const;

  // The place itself, which stays where it is until the name is closed. Throws EngineError when it is not open.
  [[nodiscard]] const Cursor& at(std::string_view name) const { return find(name); }

 private:
  [[nodiscard]] Cursor& find(std::string_view name);
  [[nodiscard]] const Cursor& find(std::string_view name) const;
  void place(Cursor& cursor, RowId row);

  std::unordered_map<std::string, Cursor> cursors_;  // by name in lower case
};

}  // namespace motor
