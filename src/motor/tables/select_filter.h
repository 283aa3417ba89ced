#pragma once

#include <vector>

#include "motor/tables/select_scope.h"

namespace motor {

// Everything that And joins at the top of a Where.
[[nodiscard]] std::vector<const Expression*> conjunctsOf(const Expression* where);

// The rows of one table, ascending, for which all conjuncts are true; they read no other table of the Select. Uses the
// table's indexes where a conjunct allows it.
[[nodiscard]] std::vector<RowId> filterRows(SelectScope& scope, std::size_t table,
                                            const std::vector<const Expression*>& conjuncts);

// Whether an expression is true; a value that is neither true nor false is a LanguageError.
[[nodiscard]] bool holds(const Expression& expression, const Scope& scope);

}  // namespace motor
