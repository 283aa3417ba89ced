#pragma once

#include <cstddef>
#include <string>

#include "motor/language/error.h"

namespace motor {

// One word, number, text or sign of a program.
struct Token {
  enum class Kind { name, number, text, sign, end };

  Kind kind = Kind::end;
  std::string text;    // a name as written, a text without its quotes, a sign, or a number as written
  std::string folded;  // of a name: in lower case
  double number = 0;   // of a number
  Position position;
  std::size_t begin = 0;  // bytes of the source that it was read from
  std::size_t end = 0;

  // Whether it is this word (given in lower case), whatever its case.
  [[nodiscard]] bool isWord(const char* lowerCase) const { return kind == Kind::name && folded == lowerCase; }
  [[nodiscard]] bool isSign(const char* sign) const { return kind == Kind::sign && text == sign; }
};

}  // namespace motor
