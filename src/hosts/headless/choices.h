#pragma once

#include "forms/control.h"
#include "hosts/headless/script_line.h"

namespace headless {

// The index of the item or tab that a script means: "#N" (unquoted) by its index from 0, anything else by its text,
// which is matched exactly. Throws ScriptError when there is none, or nothing to choose from.
[[nodiscard]] int chosenIndex(const forms::Control& control, const Word& what);

}  // namespace headless
