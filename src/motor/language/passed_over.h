#pragma once

#include <string>

#include "motor/language/error.h"

namespace motor {

// A statement, or a clause of one, that was read and has no effect.
struct PassedOverPart {
  Position position;
  std::string words;  // in lower case: "set layout"; of a clause with its statement's: "set window ... printer"
  bool operator==(const PassedOverPart&) const = default;
};

}  // namespace motor
