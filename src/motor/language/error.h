#pragma once

#include <stdexcept>
#include <string>

namespace motor {

struct Position {
  int line = 1;    // from 1
  int column = 1;  // from 1, in characters
  bool operator==(const Position&) const = default;
};

// A statement or expression that the engine rejects: where, at which word, and why (Spanish, for the user). what() is
// the whole message: "línea 1, columna 5: «fooo»: se esperaba ...". The engine port turns it into failure -2147352567.
class LanguageError : public std::runtime_error {
 public:
  LanguageError(Position position, const std::string& word, const std::string& reason);

  [[nodiscard]] Position position() const { return position_; }
  [[nodiscard]] const std::string& word() const { return word_; }
  [[nodiscard]] const std::string& reason() const { return reason_; }

 private:
  Position position_;
  std::string word_;
  std::string reason_;
};

// The engine's own errors while it runs a statement that is well formed: a table that is not open, a wrong argument.
class EngineError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace motor
