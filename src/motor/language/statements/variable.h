#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

// Dim a, b As type, c As type
struct Dim {
  struct Variable {
    Name name;
    std::string type;  // in lower case
  };

  Position position;
  std::vector<Variable> variables;
};

// Undim a, b
struct Undim {
  Position position;
  std::vector<Name> names;
};

// name = expression
struct Assignment {
  Position position;
  Name name;
  ExpressionPtr value;
};

}  // namespace motor
