#include "motor/drawing/row_scope.h"

#include "motor/language/expressions/name_reference.h"
#include "text/utf8.h"

namespace motor {

void RowScope::requireRow(Position position, const std::string& word) const {
  if (row_ == 0) throw LanguageError(position, word, "no hay ninguna fila actual");
}

Value RowScope::name(const NameReference& reference) const {
  const bool isOwn = reference.table().empty() || text::equalsIgnoringCase(reference.table(), layer_.name);
  if (isOwn && text::equalsIgnoringCase(reference.name(), "rowid")) return static_cast<double>(row_);
  if (isOwn && text::equalsIgnoringCase(reference.name(), "obj")) {
    requireRow(reference.position(), reference.text());
    return layer_.table->object(row_);
  }
  const auto index = isOwn ? layer_.table->findColumn(reference.name()) : std::nullopt;
  if (!index) throw LanguageError(reference.position(), reference.text(), "no es una columna de la tabla");
  requireRow(reference.position(), reference.text());
  return layer_.table->value(row_, *index);
}

Value RowScope::column(const std::string& table, double number, Position position) const {
  const auto count = static_cast<double>(layer_.table->columns().size());
  if (!(number >= 1 && number <= count)) throw LanguageError(position, table, "no hay esa columna");
  requireRow(position, table);
  return layer_.table->value(row_, static_cast<std::size_t>(number) - 1);
}

bool RowScope::hides(const NameReference& constant) const {
  return layer_.table->findColumn(constant.name()).has_value();
}

Value RowScope::call(const FunctionCall& function, std::span<const Value> arguments) const {
  return functions_.call(function, arguments);
}

}  // namespace motor
