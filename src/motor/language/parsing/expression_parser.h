#pragma once

#include "motor/language/expression.h"
#include "motor/language/parsing/token_stream.h"

namespace motor {

// How high an expression's tree may grow; evaluating it goes as deep.
inline constexpr int kMaximumHeight = 1000;

[[nodiscard]] ExpressionPtr parseExpression(TokenStream& stream);

// The expression with its own text.
[[nodiscard]] WrittenExpression parseWrittenExpression(TokenStream& stream);

// A single operand: a number, a text, a name, a call or an expression in parentheses.
[[nodiscard]] ExpressionPtr parseOperand(TokenStream& stream);

// One or more expressions between commas.
[[nodiscard]] std::vector<ExpressionPtr> parseExpressionList(TokenStream& stream);

}  // namespace motor
