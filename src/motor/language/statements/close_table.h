#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

// Close Table a, b [Interactive]
struct CloseTable {
  Position position;
  std::vector<Name> tables;
};

// Close All [Interactive]
struct CloseAll {
  Position position;
};

}  // namespace motor
