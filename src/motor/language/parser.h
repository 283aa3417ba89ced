#pragma once

#include <string_view>
#include <vector>

#include "motor/language/expression.h"
#include "motor/language/passed_over.h"
#include "motor/language/statement.h"

namespace motor {

// The statements of a program (UTF-8); a statement ends where the words of the next one begin. Everything is parsed or
// nothing: throws LanguageError at the first word that is not understood. Positions count from `start`.
[[nodiscard]] std::vector<Statement> parseProgram(std::string_view source, Position start = {});

// The same, with what was read and will have no effect, in the order it stands.
struct Program {
  std::vector<Statement> statements;
  std::vector<PassedOverPart> passedOver;
};
[[nodiscard]] Program parseProgramWhole(std::string_view source, Position start = {});

// One expression, all of the text.
[[nodiscard]] ExpressionPtr parseExpression(std::string_view source);

}  // namespace motor
