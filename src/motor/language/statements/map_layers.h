#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

// Add Map [Window id] [Auto] Layer t, ...
struct AddMapLayer {
  Position position;
  ExpressionPtr window;
  bool automatic = false;
  std::vector<Name> tables;
};

// Remove Map [Window id] Layer n, ... [Interactive]
struct RemoveMapLayer {
  Position position;
  ExpressionPtr window;
  std::vector<LayerReference> layers;
  bool interactive = false;
};

}  // namespace motor
