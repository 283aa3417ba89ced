#include "motor/language/expressions/column_by_number.h"

namespace motor {

Value ColumnByNumber::evaluate(const Scope& scope) const {
  const Value number = number_->evaluate(scope);
  if (number.number() == nullptr) {
    throw LanguageError(number_->position(), "col", "el número de columna tiene que ser un número");
  }
  return scope.column(table_, *number.number(), position());
}

}  // namespace motor
