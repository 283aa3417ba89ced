#pragma once

#include <string>

#include "motor/language/statement.h"

namespace motor {

// Where a statement begins, and the word that it begins with: "Select", "Set", a variable's name.
[[nodiscard]] Position positionOf(const Statement& statement);
[[nodiscard]] std::string firstWord(const Statement& statement);

}  // namespace motor
