#pragma once

#include <cstddef>

namespace motor {

// The longest text that an expression may hold or give, in bytes.
inline constexpr std::size_t kLongestText = 1'000'000;

// The most words, numbers, texts and signs that a program may have; what is read of them takes some hundred bytes each.
inline constexpr std::size_t kMostTokens = 2'000'000;

}  // namespace motor
