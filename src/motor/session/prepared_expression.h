#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "motor/language/expression.h"
#include "motor/language/function_table.h"
#include "motor/session/session_scope.h"

namespace motor {

// An expression that is evaluated again and again: it remembers which columns its names mean, as long as the session's
// tables stay the same, and which functions it calls. It is not to be used any more when the session's functions
// change.
class PreparedExpression {
 public:
  // Throws LanguageError when the text is no expression.
  explicit PreparedExpression(const std::string& text);

  [[nodiscard]] Value evaluate(const SessionState& session) const;
  // The same as text, as `Eval` gives it.
  [[nodiscard]] std::string evaluateToText(const SessionState& session) const;

 private:
  class BoundScope;

  // What the one name of a plain column expression means now; null for any other expression.
  [[nodiscard]] const ColumnBinding* boundColumn(const SessionState& session) const;

  ExpressionPtr expression_;
  const NameReference* column_ = nullptr;  // the whole expression, when it is `table.name`
  mutable std::vector<std::pair<const NameReference*, ColumnBinding>> bindings_;
  mutable std::vector<std::pair<const FunctionCall*, const FunctionTable::Function*>> functions_;
  mutable std::uint64_t generation_ = 0;  // of the session's tables when bindings_ was made
};

}  // namespace motor
