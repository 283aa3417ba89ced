#pragma once

#include "motor/language/parsing/token_stream.h"
#include "motor/language/statements/select.h"

namespace motor {

// What follows the word Select, which stood at `position`.
[[nodiscard]] SelectStatement parseSelect(TokenStream& stream, Position position);

}  // namespace motor
