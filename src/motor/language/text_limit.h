#pragma once

#include <cstddef>

namespace motor {

// The longest text that an expression may hold or give, in bytes.
inline constexpr std::size_t kLongestText = 1'000'000;

}  // namespace motor
