#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

// What a menu entry or a button calls: a standard command, or a method of the callback object.
struct Calling {
  Position position;
  ExpressionPtr command;  // Calling n
  std::string method;     // Calling OLE "method"; an entry that calls nothing has neither
};

struct MenuItem {
  Position position;
  ExpressionPtr text;
  ExpressionPtr id;
  Calling calling;
  std::string submenu;  // As "menu"
};

// Create Menu name [ID n] As item, ...
struct CreateMenu {
  Position position;
  ExpressionPtr name;
  ExpressionPtr id;
  std::vector<MenuItem> items;
};

}  // namespace motor
