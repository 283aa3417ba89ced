#pragma once

#include <string>

// Numbers as the pages print them in Spanish: a point between thousands, from 1.000 on, and a decimal comma.
namespace study::pages {

[[nodiscard]] std::string wholeNumber(long number);

// Rounded to `decimals` (0 to 9) decimals, halves away from 0. The number is finite.
[[nodiscard]] std::string decimalNumber(double number, int decimals);

}  // namespace study::pages
