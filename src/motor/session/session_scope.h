#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "motor/language/expression.h"
#include "motor/tables/coordinate_system.h"
#include "motor/tables/cursor.h"

namespace motor {

class SessionState;

// What `table.name` names: a column, the object or the row number of a table's current row. Good as long as the
// session's tables are the same.
struct ColumnBinding {
  enum class Kind { column, object, rowId };

  std::string table;
  const Cursors::Cursor* cursor = nullptr;
  Kind kind = Kind::column;
  std::size_t column = 0;
};

// Names and functions outside Select: variables, open tables and their current rows, the functions of a session.
class SessionScope : public Scope {
 public:
  explicit SessionScope(const SessionState& session) : session_(session) {}

  [[nodiscard]] Value name(const NameReference& reference) const override;
  [[nodiscard]] Value column(const std::string& table, double number, Position position) const override;
  [[nodiscard]] Value call(const FunctionCall& function, std::span<const Value> arguments) const override;
  [[nodiscard]] bool hides(const NameReference& constant) const override;

  // Throws LanguageError when the table is not open or has no such column.
  [[nodiscard]] ColumnBinding bind(const NameReference& reference) const;
  // Throws EngineError when the table has no current row.
  [[nodiscard]] Value read(const ColumnBinding& binding) const;
  // The field where it is kept, without a copy; null where `read` is to be asked.
  [[nodiscard]] const std::string* readText(const ColumnBinding& binding) const;

 private:
  [[nodiscard]] Value objectInSession(const Table& table, const ObjectPtr& object) const;

  const SessionState& session_;
  // The last object that was read, and what became of it.
  mutable ObjectPtr source_;
  mutable CoordinateSystem system_;
  mutable ObjectPtr transformed_;
};

}  // namespace motor
