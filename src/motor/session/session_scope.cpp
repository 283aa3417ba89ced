#include "motor/session/session_scope.h"

#include <cmath>

#include "motor/language/expressions/name_reference.h"
#include "motor/session/session_state.h"
#include "text/utf8.h"

namespace motor {

Value SessionScope::name(const NameReference& reference) const {
  if (!reference.table().empty()) return read(bind(reference));
  if (const Value* variable = session_.variables.find(reference.name())) return *variable;
  if (text::equalsIgnoringCase(reference.name(), "Selection") || session_.tables.find(reference.name()))
    return reference.name();
  throw LanguageError(reference.position(), reference.name(), "no es una tabla abierta ni una variable");
}

Value SessionScope::column(const std::string& table, double number, Position position) const {
  if (table.empty()) throw LanguageError(position, "col", "falta la tabla");
  const TableEntry& entry = session_.tables.at(table);
  const double count = static_cast<double>(entry.table->columns().size());
  if (!(number >= 1 && number <= count) || std::floor(number) != number)
    throw LanguageError(position, table + ".col", "la tabla no tiene esa columna");
  return entry.table->value(session_.tables.cursors().row(table), static_cast<std::size_t>(number) - 1);
}

Value SessionScope::call(const FunctionCall& function, std::span<const Value> arguments) const {
  return session_.functions.call(function, arguments);
}

bool SessionScope::hides(const NameReference& constant) const {
  return session_.variables.find(constant.name()) != nullptr;
}

ColumnBinding SessionScope::bind(const NameReference& reference) const {
  const TablePtr table = session_.tables.find(reference.table());
  if (!table) {
    const bool isSelection = text::equalsIgnoringCase(reference.table(), "Selection");
    throw LanguageError(
        reference.position(), reference.text(),
        isSelection ? "no hay nada seleccionado" : "la tabla «" + reference.table() + "» no está abierta");
  }
  ColumnBinding binding{.table = reference.table(), .cursor = &session_.tables.cursors().at(reference.table())};
  if (const auto column = table->findColumn(reference.name())) {
    binding.column = *column;
  } else if (text::equalsIgnoringCase(reference.name(), "obj") ||
             text::equalsIgnoringCase(reference.name(), "object")) {
    binding.kind = ColumnBinding::Kind::object;
  } else if (text::equalsIgnoringCase(reference.name(), "rowid")) {
    binding.kind = ColumnBinding::Kind::rowId;
  } else {
    throw LanguageError(reference.position(), reference.text(), "la tabla no tiene esa columna");
  }
  return binding;
}

Value SessionScope::read(const ColumnBinding& binding) const {
  const Cursors::Cursor& cursor = *binding.cursor;
  if (cursor.row == 0) throw EngineError("la tabla «" + binding.table + "» no tiene fila actual");
  switch (binding.kind) {
    case ColumnBinding::Kind::column:
      return cursor.table->value(cursor.row, binding.column);
    case ColumnBinding::Kind::object:
      return objectInSession(*cursor.table, cursor.table->object(cursor.row));
    case ColumnBinding::Kind::rowId:
      return static_cast<double>(cursor.row);
  }
  return {};
}

const std::string* SessionScope::readText(const ColumnBinding& binding) const {
  const Cursors::Cursor& cursor = *binding.cursor;
  if (cursor.row == 0 || binding.kind != ColumnBinding::Kind::column) return nullptr;
  return cursor.table->text(cursor.row, binding.column);
}

Value SessionScope::objectInSession(const Table& table, const ObjectPtr& object) const {
  if (!object || table.coordinateSystem() == session_.coordinateSystem) return object;
  if (object != source_ || !(system_ == session_.coordinateSystem)) {
    auto copy = std::make_shared<MapObject>(*object);
    Transformation(table.coordinateSystem(), session_.coordinateSystem).apply(copy->points);
    copy->bounds = {};
    for (const Point& p : copy->points) copy->bounds.add(p);
    source_ = object;
    system_ = session_.coordinateSystem;
    transformed_ = std::move(copy);
  }
  return transformed_;
}

}  // namespace motor
