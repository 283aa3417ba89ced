#pragma once

#include <cstdint>
#include <vector>

#include "motor/tables/select_scope.h"

namespace motor {

// One key of Group By or Order By, as numbers that compare like the values behind them, by row of the result-to-be.
using Ordinals = std::vector<double>;

// Values of one type, one a row, as ordinals: nothing first, numbers by size, texts in the Spanish order. When
// `grouping`, texts that are equal but for case share an ordinal.
[[nodiscard]] Ordinals ordinalsOf(const std::vector<Value>& values, bool grouping);

// The same for a table's column at some of its rows.
[[nodiscard]] Ordinals ordinalsOf(const SelectTable& table, std::size_t column, const std::vector<RowId>& rows,
                                  bool grouping);

struct SortKeyOrdinals {
  Ordinals ordinals;
  bool descending = false;
};

// The indexes 0..count-1 in the order of the keys; equal ones stay as they are.
[[nodiscard]] std::vector<std::uint32_t> sortedIndexes(const std::vector<SortKeyOrdinals>& keys, std::size_t count);

// Rows with the same keys, by the index of the first of them.
struct RowGroups {
  std::vector<std::uint32_t> groupOf;  // by row
  std::vector<std::uint32_t> first;    // by group, ascending
};
[[nodiscard]] RowGroups groupRows(const std::vector<Ordinals>& keys, std::size_t count);

}  // namespace motor
