#pragma once

#include <string>

namespace text {

// A number as Spanish readers write it: "," before the decimals, "." between thousands ("1.234.567,9"), "-" before a
// negative one. Rounded to `decimals` places (0 to 15), halves away from zero.
[[nodiscard]] std::string spanishNumber(double number, int decimals);

// The same with as many decimals as the number has, at most `most`.
[[nodiscard]] std::string shortSpanishNumber(double number, int most);

}  // namespace text
