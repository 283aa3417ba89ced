#pragma once

#include <compare>
#include <string>
#include <string_view>

// The Spanish order of names: letters first (á with a, ü with u, ñ a letter of its own after n), then accents, then
// case (lower before upper). Digits come before letters and other signs before digits.
namespace text {

[[nodiscard]] std::strong_ordering collate(std::string_view a, std::string_view b);

// A byte string whose plain comparison is the order of `collate`.
[[nodiscard]] std::string collationKey(std::string_view s);

// For sorting containers of text.
struct CollationLess {
  bool operator()(std::string_view a, std::string_view b) const { return std::is_lt(collate(a, b)); }
};

}  // namespace text
