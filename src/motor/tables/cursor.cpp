#include "motor/tables/cursor.h"

#include <cmath>

#include "motor/language/error.h"
#include "motor/tables/result_table.h"
#include "text/utf8.h"

namespace motor {

namespace {

// The first row from `row` on, upwards or downwards, that is not deleted; 0 when there is none.
RowId rowFrom(const Table& table, RowId row, bool upwards) {
  const RowId count = table.rowCount();
  while (row >= 1 && row <= count && table.isDeleted(row)) upwards ? ++row : --row;
  return row <= count ? row : 0;
}

RowId rowNumbered(const Table& table, double record) {
  const bool exists = record >= 1 && record <= table.rowCount() && record == std::floor(record);
  if (!exists || table.isDeleted(static_cast<RowId>(record))) throw EngineError("la tabla no tiene esa fila");
  return static_cast<RowId>(record);
}

}  // namespace

void Cursors::open(std::string_view name, TablePtr table) {
  Cursor& cursor = cursors_[text::lower(name)];
  cursor.table = std::move(table);
  place(cursor, rowFrom(*cursor.table, 1, true));
}

void Cursors::openBeside(std::string_view name, std::string_view other) {
  const Cursor there = find(other);
  cursors_[text::lower(name)] = there;
}

void Cursors::replace(std::string_view name, TablePtr table) { find(name).table = std::move(table); }

void Cursors::close(std::string_view name) { cursors_.erase(text::lower(name)); }

void Cursors::fetch(std::string_view name, Fetch::Target target, double record) {
  Cursor& cursor = find(name);
  const Table& table = *cursor.table;
  switch (target) {
    case Fetch::Target::first:
      return place(cursor, rowFrom(table, 1, true));
    case Fetch::Target::last:
      return place(cursor, rowFrom(table, table.rowCount(), false));
    case Fetch::Target::next:
      return place(cursor, cursor.row == 0 ? 0 : rowFrom(table, cursor.row + 1, true));
    case Fetch::Target::previous:
      return place(cursor, cursor.row == 0 ? 0 : rowFrom(table, cursor.row - 1, false));
    case Fetch::Target::record:
      return place(cursor, rowNumbered(table, record));
  }
}

bool Cursors::atEnd(std::string_view name) const { return find(name).beyond; }

RowId Cursors::row(std::string_view name) const {
  const Cursor& cursor = find(name);
  if (cursor.row == 0) throw EngineError("la tabla «" + std::string(name) + "» no tiene fila actual");
  return cursor.row;
}

Cursors::Cursor& Cursors::find(std::string_view name) {
  return const_cast<Cursor&>(static_cast<const Cursors&>(*this).find(name));
}

const Cursors::Cursor& Cursors::find(std::string_view name) const {
  const auto cursor = cursors_.find(text::lower(name));
  if (cursor == cursors_.end()) throw EngineError("la tabla «" + std::string(name) + "» no está abierta");
  return cursor->second;
}

void Cursors::place(Cursor& cursor, RowId row) {
  cursor.row = row;
  cursor.beyond = row == 0;
  const auto* result = dynamic_cast<const ResultTable*>(cursor.table.get());
  if (result == nullptr || row == 0) return;
  for (std::size_t source = 0; source < result->sources().size(); ++source) {
    const ResultSource& behind = result->sources()[source];
    const auto other = cursors_.find(text::lower(behind.name));
    if (other == cursors_.end() || other->second.table != behind.table) continue;
    other->second.row = result->sourceRow(row, source);
    other->second.beyond = false;
  }
}

}  // namespace motor
