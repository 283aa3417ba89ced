#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Numbers as text and back, with "." as decimal sign whatever the locale.
namespace text {

// The shortest digits that read back as the same number; no trailing ".0"; -0 is "0". An exponent only from 1e15
// upwards, and for numbers so small that they would take more than 40 characters without one.
[[nodiscard]] std::string number(double value);
[[nodiscard]] std::string number(std::int64_t value);

// The same digits, never with an exponent: 1.5e16 is "15000000000000000". The value is finite.
[[nodiscard]] std::string plainNumber(double value);

// The number that `s` spells (blanks around it allowed, exponent allowed). Empty or blank is 0. Anything else fails
// with 13 (type mismatch).
[[nodiscard]] double toNumber(std::string_view s);

// As toNumber, rounded half to even; outside the type's range fails with 6 (overflow).
[[nodiscard]] std::int16_t toInt16(std::string_view s);
[[nodiscard]] std::int32_t toInt32(std::string_view s);

}  // namespace text
