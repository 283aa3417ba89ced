#include "text/utf8.h"

#include <algorithm>
#include <array>

#include "text/letters.h"

namespace text {
namespace {

constexpr char32_t kMalformed = 0xDC00;  // plus the byte

// The bytes that the character starting at s[i] takes: 1 for a malformed one.
std::size_t characterBytes(std::string_view s, std::size_t i) {
  const auto lead = static_cast<unsigned char>(s[i]);
  std::size_t bytes = 1;
  if (lead >= 0xC2 && lead < 0xE0) bytes = 2;
  if (lead >= 0xE0 && lead < 0xF0) bytes = 3;
  if (lead >= 0xF0 && lead < 0xF5) bytes = 4;
  if (i + bytes > s.size()) return 1;
  for (std::size_t k = 1; k < bytes; ++k) {
    if ((static_cast<unsigned char>(s[i + k]) & 0xC0) != 0x80) return 1;
  }
  if (bytes == 1) return 1;
  const auto second = static_cast<unsigned char>(s[i + 1]);
  const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
  const bool outOfRange = (lead == 0xED && second >= 0xA0) || (lead == 0xF4 && second >= 0x90);
  return overlong || outOfRange ? 1 : bytes;
}

// The byte offset of the character at `position` (from 1), or the end.
std::size_t byteOffset(std::string_view s, std::size_t position) {
  std::size_t i = 0;
  for (std::size_t k = 1; k < position && i < s.size(); ++k) i += characterBytes(s, i);
  return i;
}

template <class Map>
std::string mapped(std::string_view s, Map map) {
  std::u32string points = decode(s);
  for (char32_t& c : points) c = map(c);
  return encode(points);
}

}  // namespace

std::size_t length(std::string_view s) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < s.size(); i += characterBytes(s, i)) ++count;
  return count;
}

std::string left(std::string_view s, std::size_t count) { return mid(s, 1, count); }

std::string mid(std::string_view s, std::size_t start, std::size_t count) {
  const std::string_view rest = s.substr(byteOffset(s, start));
  if (count >= rest.size()) return std::string(rest);
  return std::string(rest.substr(0, byteOffset(rest, count + 1)));
}

std::size_t find(std::string_view s, std::string_view needle, std::size_t start) {
  const std::size_t from = byteOffset(s, start);
  const std::size_t found = s.find(needle, from);
  if (found == std::string_view::npos) return 0;
  return start + length(s.substr(from, found - from));
}

std::vector<std::string> characters(std::string_view s) {
  std::vector<std::string> all;
  for (std::size_t i = 0; i < s.size();) {
    const std::size_t bytes = characterBytes(s, i);
    all.emplace_back(s.substr(i, bytes));
    i += bytes;
  }
  return all;
}

std::u32string decode(std::string_view s) {
  std::u32string points;
  points.reserve(s.size());
  for (std::size_t i = 0; i < s.size();) {
    const std::size_t bytes = characterBytes(s, i);
    const auto lead = static_cast<unsigned char>(s[i]);
    char32_t c = lead;
    if (bytes == 1 && lead >= 0x80) c = kMalformed + lead;
    if (bytes > 1) {
      c = lead & (0xFFU >> (bytes + 1));
      for (std::size_t k = 1; k < bytes; ++k) c = (c << 6) | (static_cast<unsigned char>(s[i + k]) & 0x3FU);
    }
    points.push_back(c);
    i += bytes;
  }
  return points;
}

std::string encode(std::u32string_view s) {
  std::string bytes;
  bytes.reserve(s.size());
  for (const char32_t c : s) {
    if (c < 0x80) {
      bytes.push_back(static_cast<char>(c));
    } else if (c >= kMalformed + 0x80 && c <= kMalformed + 0xFF) {
      bytes.push_back(static_cast<char>(c - kMalformed));
    } else if (c < 0x800) {
      bytes.push_back(static_cast<char>(0xC0 | (c >> 6)));
      bytes.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else if (c < 0x10000) {
      bytes.push_back(static_cast<char>(0xE0 | (c >> 12)));
      bytes.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
      bytes.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else {
      bytes.push_back(static_cast<char>(0xF0 | (c >> 18)));
      bytes.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
      bytes.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
      bytes.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    }
  }
  return bytes;
}

std::string upper(std::string_view s) { return mapped(s, upperLetter); }
std::string lower(std::string_view s) { return mapped(s, lowerLetter); }

std::string compose(std::string_view s) {
  const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  if (std::ranges::all_of(s, isAscii)) return std::string(s);
  std::u32string composed;
  for (const char32_t c : decode(s)) {
    const char32_t joined = composed.empty() ? 0 : composedLetter(composed.back(), c);
    if (joined != 0) {
      composed.back() = joined;
    } else {
      composed.push_back(c);
    }
  }
  return encode(composed);
}

std::string withoutAccents(std::string_view s) {
  return mapped(compose(s), [](char32_t c) { return baseLetter(c).base; });
}

bool equalsIgnoringCase(std::string_view a, std::string_view b) { return a == b || lower(a) == lower(b); }

bool startsWith(std::string_view s, std::string_view prefix) { return s.substr(0, prefix.size()) == prefix; }

std::string trim(std::string_view s) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const std::size_t first = s.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return "";
  return std::string(s.substr(first, s.find_last_not_of(kBlanks) - first + 1));
}

}  // namespace text
