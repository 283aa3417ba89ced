#pragma once

#include <string>

namespace motor {

// A text that is written with `\n` where its lines end, with line feeds there.
[[nodiscard]] std::string withLineBreaks(std::string text);

}  // namespace motor
