#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

// Set CoordSys ...
struct SetCoordSys {
  Position position;
  CoordSysClause coordSys;
};

// Set Distance Units u, Set Area Units u, Set Paper Units u
struct SetUnits {
  enum class Kind { distance, area, paper };

  Position position;
  Kind kind = Kind::distance;
  ExpressionPtr unit;
};

// Set Format Number "9,999.9" | "Local", Set Format Date "US" | "Local"
struct SetFormat {
  enum class Kind { number, date };

  Position position;
  Kind kind = Kind::number;
  ExpressionPtr format;
};

}  // namespace motor
