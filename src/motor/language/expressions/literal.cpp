#include "motor/language/expressions/literal.h"

namespace motor {

Value Literal::evaluate(const Scope& /*scope*/) const { return value_; }

}  // namespace motor
