#include "study/pages/spanish_numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace study::pages {

namespace {

// Points into the whole part of a number spelled with a decimal point or none, the point into a comma.
std::string punctuated(const std::string& plain) {
  const std::size_t point = std::min(plain.find('.'), plain.size());
  const std::size_t first = plain.starts_with('-') ? 1 : 0;
  std::string text;
  for (std::size_t i = 0; i < point; ++i) {
    if (i > first && (point - i) % 3 == 0) text += '.';
    text += plain[i];
  }
  if (point < plain.size()) text.append(",").append(plain, point + 1);
  return text;
}

}  // namespace

std::string wholeNumber(long number) { return punctuated(std::to_string(number)); }

std::string decimalNumber(double number, int decimals) {
  // Halves go up, as readers expect; printing alone would round them to even.
  const double scale = std::pow(10.0, decimals);
  const double scaled = std::round(number * scale) / scale;
  const double rounded = std::isfinite(scaled) ? scaled : number;
  std::array<char, 400> digits{};  // the greatest double has 309 digits before its point
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), rounded, std::chars_format::fixed, decimals);
  return punctuated(std::string(digits.data(), end.ptr));
}

}  // namespace study::pages
