#include "motor/tables/select_columns.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "motor/language/expressions/aggregate.h"
#include "motor/language/expressions/literal.h"
#include "text/utf8.h"

namespace motor {

namespace {

OutputColumn ownColumn(const SelectScope& scope, std::size_t table, std::size_t index) {
  return {scope.tables()[table].table->columns()[index], table, index, nullptr};
}

std::vector<OutputColumn> allColumns(const SelectScope& scope) {
  std::vector<OutputColumn> columns;
  for (std::size_t table = 0; table < scope.tables().size(); ++table) {
    const std::size_t count = scope.tables()[table].table->columns().size();
    for (std::size_t index = 0; index < count; ++index) columns.push_back(ownColumn(scope, table, index));
  }
  return columns;
}

// Where a column is a plain name: what it names.
RowBinding bindingOf(const SelectColumn& column, const SelectScope& scope) {
  const auto* reference = dynamic_cast<const NameReference*>(column.value.expression.get());
  return reference == nullptr ? RowBinding() : scope.bind(*reference);
}

// A computed column is COLn by its place; its type is known when it is computed.
OutputColumn computedColumn(const SelectColumn& column, std::size_t number) {
  OutputColumn output;
  output.column.name = "COL" + std::to_string(number);
  output.expression = column.value.expression;
  return output;
}

// The number n of `colN`, from 1; 0 when the name is none such.
std::size_t columnNumber(std::string_view name) {
  std::size_t number = 0;
  if (name.size() > 3 && text::equalsIgnoringCase(name.substr(0, 3), "col")) {
    const auto end = std::from_chars(name.data() + 3, name.data() + name.size(), number);
    if (end.ptr != name.data() + name.size()) return 0;
  }
  return number;
}

std::optional<std::size_t> findOutput(std::string_view name, const std::vector<OutputColumn>& columns) {
  const auto found = std::find_if(columns.begin(), columns.end(), [name](const OutputColumn& output) {
    return text::equalsIgnoringCase(output.column.name, name);
  });
  if (found != columns.end()) return static_cast<std::size_t>(found - columns.begin());
  const std::size_t number = columnNumber(name);
  if (number >= 1 && number <= columns.size()) return number - 1;
  return std::nullopt;
}

KeyColumn keyByNumber(const SelectKey& key, const Literal& literal, const std::vector<OutputColumn>& columns) {
  const double* number = literal.value().number();
  const bool exists = number != nullptr && *number >= 1 && *number <= static_cast<double>(columns.size()) &&
                      *number == std::floor(*number);
  if (!exists) throw LanguageError(key.position, literal.value().toText(), "el resultado no tiene esa columna");
  return {static_cast<std::size_t>(*number) - 1, {}};
}

}  // namespace

std::vector<OutputColumn> outputColumns(const SelectStatement& statement, const SelectScope& scope) {
  if (statement.all) return allColumns(scope);
  std::vector<OutputColumn> columns;
  for (const SelectColumn& column : statement.columns) {
    const RowBinding binding = bindingOf(column, scope);
    if (binding.kind == RowBinding::Kind::object) continue;
    columns.push_back(binding.kind == RowBinding::Kind::column ? ownColumn(scope, binding.table, binding.column)
                                                               : computedColumn(column, columns.size() + 1));
    if (!column.alias.empty()) columns.back().column.name = column.alias;
  }
  return columns;
}

const Aggregate* aggregateIn(const Expression& expression) {
  if (const auto* aggregate = dynamic_cast<const Aggregate*>(&expression)) return aggregate;
  for (const Expression* child : expression.children()) {
    if (const Aggregate* aggregate = aggregateIn(*child)) return aggregate;
  }
  return nullptr;
}

KeyColumn keyColumn(const SelectKey& key, const std::vector<OutputColumn>& columns, const SelectScope& scope) {
  if (const auto* literal = dynamic_cast<const Literal*>(key.column.get())) return keyByNumber(key, *literal, columns);
  const auto& reference = dynamic_cast<const NameReference&>(*key.column);
  if (reference.table().empty()) {
    if (const auto output = findOutput(reference.name(), columns)) return {output, {}};
  }
  const RowBinding binding = scope.bind(reference);
  if (binding.kind == RowBinding::Kind::column || binding.kind == RowBinding::Kind::rowId)
    return {std::nullopt, binding};
  throw LanguageError(key.position, reference.text(), "no es una columna");
}

}  // namespace motor
