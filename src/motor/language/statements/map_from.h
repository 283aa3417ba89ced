#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

// Map From a, b, ... [Position ...] [Width ...] [Height ...] [Min | Max]: a new map window; the first table is on top.
struct MapFrom {
  Position position;
  std::vector<Name> tables;
  WindowShape shape;
};

}  // namespace motor
