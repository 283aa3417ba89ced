#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

// Open Table file [As name] [Hide] [ReadOnly] [Interactive] ...
struct OpenTable {
  Position position;
  ExpressionPtr file;
  std::optional<Name> as;
  bool interactive = false;
  bool hidden = false;
};

}  // namespace motor
