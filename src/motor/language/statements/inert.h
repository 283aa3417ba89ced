#pragma once

#include <string>

#include "motor/language/error.h"

namespace motor {

// A statement that only concerns printing, floating tool windows, layouts or browsers: nothing happens.
struct PassedOver {
  Position position;
  std::string name;  // "Browse", "Set Layout"
};

// A statement that writes, deletes, starts a program or loads a library: an error when it is run.
struct Refused {
  Position position;
  std::string name;    // "Save Table"
  const char* reason;  // what is not allowed, as the user is told
};

}  // namespace motor
