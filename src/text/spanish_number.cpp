#include "text/spanish_number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace text {

namespace {

// Locales have no say in these, unlike in printf's.
std::string fixed(double number, int decimals) {
  std::array<char, 400> text{};  // the greatest number has 309 digits
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, decimals).ptr;
  return {text.data(), end};
}

// Adds one to the last of some digits, which may have a point between them.
void countUp(std::string& digits) {
  for (std::size_t i = digits.size(); i-- > 0;) {
    if (digits[i] == '.') continue;
    if (digits[i] != '9') {
      ++digits[i];
      return;
    }
    digits[i] = '0';
  }
  digits.insert(digits.begin(), '1');
}

// The number as written in decimal, so that 0.145 rounds to 0.15 although its binary neighbour lies below.
std::string rounded(double number, int decimals) {
  constexpr int kDigits = 15;  // that a double always holds
  const double magnitude = std::fabs(number);
  const int whole = magnitude > 0 ? static_cast<int>(std::floor(std::log10(magnitude))) + 1 : 1;
  const int written = std::clamp(kDigits - whole, 0, 2 * kDigits);
  std::string digits = fixed(magnitude, written);
  if (decimals >= written) {
    if (written == 0 && decimals > 0) digits += '.';
    return digits.append(static_cast<std::size_t>(decimals - written), '0');
  }
  const bool isUp = digits[digits.size() - static_cast<std::size_t>(written - decimals)] >= '5';
  digits.resize(digits.size() - static_cast<std::size_t>(written - decimals));
  if (digits.back() == '.') digits.pop_back();
  if (isUp) countUp(digits);
  return digits;
}

}  // namespace

std::string spanishNumber(double number, int decimals) {
  const std::string digits = rounded(number, decimals);
  const std::size_t point = digits.find('.');
  const std::size_t whole = point == std::string::npos ? digits.size() : point;
  const bool zero = digits.find_first_not_of("0.") == std::string::npos;

  std::string text;
  if (number < 0 && !zero) text += '-';
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && i < whole && (whole - i) % 3 == 0) text += '.';
    text += i == whole ? ',' : digits[i];
  }
  return text;
}

std::string shortSpanishNumber(double number, int most) {
  std::string text = spanishNumber(number, most);
  if (text.find(',') == std::string::npos) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == ',') text.pop_back();
  return text;
}

}  // namespace text
