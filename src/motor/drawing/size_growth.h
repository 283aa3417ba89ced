#pragma once

#include <string_view>

namespace motor {

// How the size of a theme's sign grows with the value it stands for, by the word of the statement: "sqrt" (also for an
// empty word) with its square root, so that a disc's area is as the value; "log" with its logarithm, "const" as the
// value itself. The value counts without its sign. 0 for 0, and never falling.
[[nodiscard]] double sizeGrowth(std::string_view by, double value);

}  // namespace motor
