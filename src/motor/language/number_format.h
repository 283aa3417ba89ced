#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "motor/language/function_table.h"

namespace motor {

// The longest pattern of Format$, in bytes.
inline constexpr std::size_t kLongestPattern = 255;

// FormatNumber$: the number's own digits with the thousands apart ("1234567.89" becomes "1.234.567,89"); no rounding.
[[nodiscard]] std::string formatNumber(double value, const NumberSigns& signs);

// Format$: a number in a pattern of # and 0 (digits), "." and "," (decimals, thousands), % (hundredths), E+ or E-
// (exponent), \x (x itself) and ";" between the patterns of positive and negative numbers. Other characters stand for
// themselves. Signs are always "." and ",": 12345.6789 in ",#.#" is "12,345.7". Throws EngineError for a pattern that
// is too long and for hundredths beyond the numbers' range.
[[nodiscard]] std::string formatByPattern(double value, std::string_view pattern);

}  // namespace motor
