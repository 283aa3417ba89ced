#pragma once

#include <string_view>

#include "motor/language/expression.h"
#include "motor/language/statements/select.h"
#include "motor/tables/result_table.h"

namespace motor {

// The open tables by name.
class TableResolver {
 public:
  virtual ~TableResolver() = default;
  // Without regard to case; null when no such table is open.
  [[nodiscard]] virtual TablePtr find(std::string_view name) const = 0;
};

// What a Select sees besides its own tables.
struct SelectContext {
  const TableResolver& tables;
  const Scope& session;                      // functions, variables, other tables' current rows
  const CoordinateSystem& coordinateSystem;  // of the objects and coordinates that `session` gives
};

// The rows that a Select chooses. Throws LanguageError for names and expressions that mean nothing there, EngineError
// for what the tables cannot give and for what would take too much time or memory. `Into` and `NoSelect` are left to
// the caller.
[[nodiscard]] ResultPtr select(const SelectStatement& statement, const SelectContext& context);

}  // namespace motor
