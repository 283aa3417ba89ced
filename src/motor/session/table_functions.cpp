#include <array>
#include <iterator>

#include "motor/session/attributes.h"
#include "motor/session/session_functions.h"
#include "motor/session/session_state.h"
#include "text/file_text.h"

namespace motor {
namespace {

using TableAttribute = Attribute<SessionState, TableEntry>;

constexpr int kBaseTable = 1;
constexpr int kResult = 2;

// From 1 in opening order; 0 for the Selection.
int numberOf(const SessionState& session, const TableEntry& entry) {
  int number = 0;
  for (const TableEntry& other : session.tables.entries()) {
    ++number;
    if (other.name == entry.name) return number;
  }
  return 0;
}

double rows(const Table& table) {
  RowId count = 0;
  for (RowId row = 1; row <= table.rowCount(); ++row) count += table.isDeleted(row) ? 0 : 1;
  return count;
}

// The box around the objects, in the session's coordinates.
Box bounds(const SessionState& session, const TableEntry& entry) {
  const Box& box = entry.table->bounds();
  if (box.isEmpty()) throw EngineError("la tabla «" + entry.name + "» no tiene objetos de mapa");
  return Transformation(entry.table->coordinateSystem(), session.coordinateSystem)(box);
}

constexpr std::array kAttributes{
    TableAttribute{1, [](const SessionState&, const TableEntry& t) -> Value { return t.name; }},
    TableAttribute{2, [](const SessionState& s, const TableEntry& t) -> Value { return numberOf(s, t); }},
    TableAttribute{
        3, [](const SessionState&, const TableEntry& t) -> Value { return t.file.empty() ? kResult : kBaseTable; }},
    TableAttribute{4,
                   [](const SessionState&, const TableEntry& t) -> Value {
                     return static_cast<double>(t.table->columns().size());
                   }},
    TableAttribute{5, [](const SessionState&, const TableEntry& t) -> Value { return t.table->hasObjects(); }},
    TableAttribute{6, [](const SessionState&, const TableEntry&) -> Value { return true; }},
    TableAttribute{7, [](const SessionState&, const TableEntry& t) -> Value { return t.snapshot; }},
    TableAttribute{8, [](const SessionState&, const TableEntry& t) -> Value { return rows(*t.table); }},
    TableAttribute{9, [](const SessionState&, const TableEntry&) -> Value { return false; }},
    TableAttribute{10, [](const SessionState&, const TableEntry&) -> Value { return false; }},
    TableAttribute{19, [](const SessionState&, const TableEntry& t) -> Value { return text::fromPath(t.file); }},
    TableAttribute{20, [](const SessionState& s, const TableEntry& t) -> Value { return bounds(s, t).minX; }},
    TableAttribute{21, [](const SessionState& s, const TableEntry& t) -> Value { return bounds(s, t).minY; }},
    TableAttribute{22, [](const SessionState& s, const TableEntry& t) -> Value { return bounds(s, t).maxX; }},
    TableAttribute{23, [](const SessionState& s, const TableEntry& t) -> Value { return bounds(s, t).maxY; }},
};

// Argument 0: a table's name, its number from 1, or 0 for the one opened last.
const TableEntry& tableOfArgument(const SessionState& session, const Arguments& arguments) {
  if (arguments[0].number() == nullptr) return session.tables.at(arguments.text(0));
  const int number = arguments.integer(0);
  const auto& entries = session.tables.entries();
  if (number == 0) return session.tables.newest();
  if (number < 0 || number > static_cast<int>(entries.size()))
    arguments.reject(0, "no hay ninguna tabla con ese número");
  return *std::next(entries.begin(), number - 1);
}

using SelectionAttribute = Attribute<ResultPtr, std::string>;

constexpr std::array kSelectionAttributes{
    SelectionAttribute{
        1,
        [](const ResultPtr& s, const std::string&) -> Value { return s && s->rowCount() > 0 ? s->base().name : ""; }},
    SelectionAttribute{2, [](const ResultPtr&, const std::string& name) -> Value { return name; }},
    SelectionAttribute{
        3,
        [](const ResultPtr& s, const std::string&) -> Value { return s ? static_cast<double>(s->baseRowCount()) : 0; }},
};

}  // namespace

Value tableInfo(SessionState& session, const Arguments& arguments) {
  return readAttribute(kAttributes, arguments, 1, session, tableOfArgument(session, arguments));
}

Value numberOfColumns(SessionState& session, const Arguments& arguments) {
  return static_cast<double>(tableOfArgument(session, arguments).table->columns().size());
}

Value selectionInfo(SessionState& session, const Arguments& arguments) {
  // Only asking for the name opens a table that has it.
  const ResultPtr selection = session.tables.selection();
  const bool asksName = arguments.integer(0) == 2 && selection && selection->rowCount() > 0;
  return readAttribute(kSelectionAttributes, arguments, 0, selection,
                       asksName ? session.tables.nameOfSelection() : std::string());
}

Value numberOfTables(SessionState& session, const Arguments& /*arguments*/) {
  return static_cast<double>(session.tables.entries().size());
}

Value endOfTable(SessionState& session, const Arguments& arguments) {
  return session.tables.cursors().atEnd(arguments.text(0));
}

}  // namespace motor
