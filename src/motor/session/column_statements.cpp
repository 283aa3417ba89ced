#include <array>
#include <map>

#include "motor/language/expressions/name_reference.h"
#include "motor/language/expressions/operation.h"
#include "motor/session/executors.h"
#include "motor/session/extended_table.h"
#include "motor/session/session_state.h"
#include "text/utf8.h"

namespace motor {
namespace {

constexpr std::size_t kMostColumns = 1000;  // each that is added stands on the one before

struct ColumnType {
  const char* name;
  Column::Type type;
};

constexpr std::array<ColumnType, 7> kTypes{{{"char", Column::Type::text},
                                            {"integer", Column::Type::integer},
                                            {"smallint", Column::Type::integer},
                                            {"float", Column::Type::number},
                                            {"decimal", Column::Type::number},
                                            {"logical", Column::Type::logical},
                                            {"date", Column::Type::date}}};

Column::Type typeNamed(const std::string& name) {
  for (const ColumnType& type : kTypes) {
    if (type.name == name) return type.type;
  }
  throw EngineError("«" + name + "» no es un tipo de columna");
}

// Names mean columns of one row of one table.
class RowScope final : public SessionScope {
 public:
  RowScope(const SessionState& session, std::string name, const Table& table)
      : SessionScope(session), name_(std::move(name)), table_(table) {}

  RowId row = 1;

  [[nodiscard]] Value name(const NameReference& reference) const override {
    if (reference.table().empty() || text::equalsIgnoringCase(reference.table(), name_)) {
      if (const auto column = table_.findColumn(reference.name())) return table_.value(row, *column);
    }
    return SessionScope::name(reference);
  }

 private:
  std::string name_;
  const Table& table_;
};

std::size_t columnNamed(const Table& table, const NameReference& reference) {
  const auto column = table.findColumn(reference.name());
  if (!column) throw LanguageError(reference.position(), reference.text(), "la tabla no tiene esa columna");
  return *column;
}

std::string keyOf(const Value& value) { return text::lower(value.toText()); }

// The column of the table and the one of the source that `Where a = b` compares.
std::pair<std::size_t, std::size_t> joinedColumns(const AddColumn& statement, const Table& table, const Table& source) {
  const auto* equal = dynamic_cast<const BinaryOperation*>(statement.where.get());
  if (equal == nullptr || equal->op() != Operator::equal)
    throw LanguageError(statement.position, "Add Column", "falta la condición «Where columna = columna»");
  const auto* left = dynamic_cast<const NameReference*>(equal->left().get());
  const auto* right = dynamic_cast<const NameReference*>(equal->right().get());
  if (left == nullptr || right == nullptr)
    throw LanguageError(equal->position(), "=", "se esperaba una columna a cada lado");
  return {columnNamed(table, *left), columnNamed(source, *right)};
}

std::vector<Value> joinedValues(const SessionState& session, const AddColumn& statement, const Table& table) {
  const TableEntry& source = session.tables.at(statement.source->text);
  const auto [ownColumn, sourceColumn] = joinedColumns(statement, table, *source.table);
  std::map<std::string, RowId> rowByKey;
  for (RowId row = 1; row <= source.table->rowCount(); ++row) {
    if (!source.table->isDeleted(row)) rowByKey.emplace(keyOf(source.table->value(row, sourceColumn)), row);
  }
  RowScope scope(session, source.name, *source.table);
  std::vector<Value> values(table.rowCount());
  for (RowId row = 1; row <= table.rowCount(); ++row) {
    if (table.isDeleted(row)) continue;
    const auto found = rowByKey.find(keyOf(table.value(row, ownColumn)));
    if (found == rowByKey.end()) continue;
    scope.row = found->second;
    values[row - 1] = statement.setTo->evaluate(scope);
  }
  return values;
}

}  // namespace

void execute(SessionState& session, const AddColumn& statement) {
  const TableEntry entry = session.tables.at(statement.table.text);
  std::vector<Value> values;
  if (statement.source) {
    values = joinedValues(session, statement, *entry.table);
  } else {
    for (const ExpressionPtr& value : statement.values) values.push_back(value->evaluate(session.scope));
  }
  if (entry.table->columns().size() >= kMostColumns)
    throw EngineError("la tabla «" + entry.name + "» no puede tener más columnas");
  const Column column{.name = statement.column.text, .type = typeNamed(statement.type)};
  auto extended = std::make_shared<const ExtendedTable>(entry.table, column, std::move(values));
  const std::map<TablePtr, TablePtr> replaced = session.tables.replace(entry.name, extended);
  for (const auto& window : session.windows()) {
    for (Layer& layer : window->map().layers) {
      const auto found = replaced.find(layer.table);
      if (found != replaced.end()) layer.table = found->second;
    }
  }
}

}  // namespace motor
