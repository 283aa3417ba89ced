#pragma once

#include "motor/language/statements/create_menu.h"

namespace motor {

struct PadButton {
  enum class Kind { push, toggle, tool, separator };

  Position position;
  Kind kind = Kind::tool;
  Calling calling;
  ExpressionPtr id;
  ExpressionPtr icon;
  ExpressionPtr cursor;
  ExpressionPtr drawMode;
  ExpressionPtr help;
  std::optional<bool> enabled;
  std::optional<bool> checked;
};

// Create ButtonPad title As button ...
struct CreateButtonPad {
  Position position;
  ExpressionPtr title;
  std::vector<PadButton> buttons;
  std::optional<bool> shown;
};

// Alter ButtonPad title | ID n  Add button ... Remove id, ... Show | Hide | Fixed | Float | Destroy
struct AlterButtonPad {
  Position position;
  ExpressionPtr title;
  ExpressionPtr id;
  std::vector<PadButton> added;
  std::vector<ExpressionPtr> removed;
  std::optional<bool> shown;
  bool destroyed = false;
};

}  // namespace motor
