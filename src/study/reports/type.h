#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "study/reports/colours.h"

// The reports' type: one typeface, whose widths are measured apart from any device, so that a layout is the same
// everywhere. Lengths are in points.
namespace study::reports {

inline constexpr const char* kTypeface = "DejaVu Sans";

struct TextStyle {
  double size = 9;
  bool isBold = false;
  int colour = kText;

  bool operator==(const TextStyle&) const = default;
};

// From one baseline to the next.
[[nodiscard]] constexpr double lineHeight(const TextStyle& style) { return style.size * 1.36; }
// What a line's letters take above and below its baseline, accents of capitals included.
[[nodiscard]] constexpr double ascent(const TextStyle& style) { return style.size * 0.94; }
[[nodiscard]] constexpr double descent(const TextStyle& style) { return style.size * 0.24; }

// Throws StudyError where the typeface is not installed.
void requireTypeface();

// The width of one line.
[[nodiscard]] double textWidth(std::string_view text, const TextStyle& style);

// In lines of at most `width`, broken at blanks; a word that is wider than that is broken anywhere. Each line has at
// least one character. No text: no line.
[[nodiscard]] std::vector<std::string> wrapped(std::string_view text, double width, const TextStyle& style);

// On one line of at most `width`, the rest of a longer text replaced by "…".
[[nodiscard]] std::string shortened(std::string_view text, double width, const TextStyle& style);

// The width of the widest word, below which a text cannot be wrapped at its blanks alone.
[[nodiscard]] double widestWord(std::string_view text, const TextStyle& style);

}  // namespace study::reports
