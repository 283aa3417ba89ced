#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace studytest {

// A figure as a page shows it.
struct SpanishFigure {
  double value = 0;
  int decimals = 0;
  bool isMarked = false;  // as unstable, with an asterisk before it
};

// Reads "1.234.567", "*12,3", "-0,5"; none where a text is no figure so spelled.
[[nodiscard]] std::optional<SpanishFigure> spanishFigure(std::string_view text);

}  // namespace studytest
