#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

// Fetch First | Last | Next | Prev | Rec n  From t
struct Fetch {
  enum class Target { first, last, next, previous, record };

  Position position;
  Target target = Target::first;
  ExpressionPtr record;
  Name table;
};

}  // namespace motor
