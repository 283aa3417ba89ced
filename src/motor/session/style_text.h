#pragma once

#include <string>

#include "motor/language/styles.h"

namespace motor {

// A style as a statement writes it: "Pen (1,2,0)", "Brush (2,16777215)", "Font ("Arial",0,9,0)".
[[nodiscard]] std::string styleText(const Pen& pen);
[[nodiscard]] std::string styleText(const Brush& brush);
[[nodiscard]] std::string styleText(const Symbol& symbol);
[[nodiscard]] std::string styleText(const Font& font);

}  // namespace motor
