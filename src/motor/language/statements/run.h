#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

// Run Menu Command n: a standard command or tool; Run Menu Command ID n: a button or entry of the program's own.
struct RunMenuCommand {
  Position position;
  ExpressionPtr code;
  bool isOwnId = false;
};

// Run Application "file.wor"
struct RunApplication {
  Position position;
  ExpressionPtr file;
};

// Run Command text: the text is a program of its own.
struct RunCommand {
  Position position;
  ExpressionPtr text;
};

// End MapInfo [Interactive]
struct EndSession {
  Position position;
};

}  // namespace motor
