#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "motor/language/expression.h"
#include "motor/tables/select_scope.h"

namespace motor {

// A column of a result-to-be: one of a table, or an expression.
struct OutputColumn {
  Column column;
  std::size_t table = 0;
  std::size_t index = 0;     // in the table
  ExpressionPtr expression;  // null for a table's own column
};

// The columns that a Select asks for. `obj` is not among them: a result has the objects of its rows anyway.
[[nodiscard]] std::vector<OutputColumn> outputColumns(const SelectStatement& statement, const SelectScope& scope);

// An aggregate that an expression holds, or null.
[[nodiscard]] const Aggregate* aggregateIn(const Expression& expression);

// What a key of Group By or Order By stands for: an output column, or else a table's column or expression.
struct KeyColumn {
  std::optional<std::size_t> output;
  RowBinding binding;
};

// Throws LanguageError for a key that names no column.
[[nodiscard]] KeyColumn keyColumn(const SelectKey& key, const std::vector<OutputColumn>& columns,
                                  const SelectScope& scope);

}  // namespace motor
