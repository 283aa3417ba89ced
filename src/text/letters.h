#pragma once

// Letter tables behind the text functions.
namespace text {

// Simple case mapping of Latin, Greek and Cyrillic letters.
[[nodiscard]] char32_t upperLetter(char32_t c);
[[nodiscard]] char32_t lowerLetter(char32_t c);

// An accented Latin letter as its base letter and combining mark; a plain letter has mark 0.
struct AccentedLetter {
  char32_t base = 0;
  char32_t mark = 0;
};
[[nodiscard]] AccentedLetter baseLetter(char32_t c);

// The one letter for a base letter and a combining mark, or 0 when there is none.
[[nodiscard]] char32_t composedLetter(char32_t base, char32_t mark);

}  // namespace text
