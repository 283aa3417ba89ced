#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// UTF-8 text whose lengths and positions count characters (code points). Positions start at 1. Malformed bytes count as
// one character each and are kept as they are.
namespace text {

[[nodiscard]] std::size_t length(std::string_view s);

// The first `count` characters, or all of them.
[[nodiscard]] std::string left(std::string_view s, std::size_t count);

// The characters from position `start` (>= 1) on, at most `count` of them; empty beyond the end.
[[nodiscard]] std::string mid(std::string_view s, std::size_t start, std::size_t count = std::string_view::npos);

// The position of the first `needle` at or after `start` (>= 1), or 0. An empty needle is found at `start`.
[[nodiscard]] std::size_t find(std::string_view s, std::string_view needle, std::size_t start = 1);

// The characters of `s`, one string each.
[[nodiscard]] std::vector<std::string> characters(std::string_view s);

// The code points of `s`; a malformed byte b becomes U+DC00 + b, so that it round-trips through `encode`.
[[nodiscard]] std::u32string decode(std::string_view s);
[[nodiscard]] std::string encode(std::u32string_view s);

// Simple case mapping of Latin, Greek and Cyrillic letters; everything else is unchanged.
[[nodiscard]] std::string upper(std::string_view s);
[[nodiscard]] std::string lower(std::string_view s);

// Latin letters with a combining accent become one code point (n + U+0303 -> ñ); "composed" text is unchanged.
[[nodiscard]] std::string compose(std::string_view s);

// Accents of Latin letters removed (á -> a, ü -> u, ñ -> n), case kept.
[[nodiscard]] std::string withoutAccents(std::string_view s);

[[nodiscard]] bool equalsIgnoringCase(std::string_view a, std::string_view b);
[[nodiscard]] bool startsWith(std::string_view s, std::string_view prefix);

[[nodiscard]] std::string trim(std::string_view s);

}  // namespace text
