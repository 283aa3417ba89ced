#include "motor/language/expressions/name_reference.h"

namespace motor {

Value NameReference::evaluate(const Scope& scope) const { return scope.name(*this); }

}  // namespace motor
