#pragma once

#include <string_view>
#include <vector>

#include "motor/language/token.h"

namespace motor {

// The tokens of a UTF-8 program, the last one of kind `end`. Comments (' to the line's end) and blanks are left out. A
// number ends where a word begins, with or without a blank between them ("1234Max"). Positions count from `start`.
// Throws LanguageError for a text without its closing quote, a malformed number and a character of no token.
[[nodiscard]] std::vector<Token> tokenize(std::string_view source, Position start = {});

}  // namespace motor
