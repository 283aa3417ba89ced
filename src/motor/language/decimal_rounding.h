#pragma once

#include <optional>

namespace motor {

// The multiple of `multiple` nearest to `value`, both taken as the decimal numbers that their shortest digits write;
// halves go away from zero (12.345 to 0.01 is 12.35). None when `multiple` is 0,
// infinity when it is beyond the range of numbers.
[[nodiscard]] std::optional<double> roundToMultiple(double value, double multiple);

// `value` to so many decimals, in the same way.
[[nodiscard]] double roundToDecimals(double value, int decimals);

}  // namespace motor
