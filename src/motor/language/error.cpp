#include "motor/language/error.h"

namespace motor {

namespace {

std::string message(Position position, const std::string& word, const std::string& reason) {
  const std::string where = "línea " + std::to_string(position.line) + ", columna " + std::to_string(position.column);
  return where + (word.empty() ? ": fin del texto: " : ": «" + word + "»: ") + reason;
}

}  // namespace

LanguageError::LanguageError(Position position, const std::string& word, const std::string& reason)
    : std::runtime_error(message(position, word, reason)), position_(position), word_(word), reason_(reason) {}

}  // namespace motor
