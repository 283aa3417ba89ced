#include "motor/language/decimal_rounding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

namespace motor {

namespace {

__extension__ typedef unsigned __int128 Wide;  // NOLINT(modernize-use-using): `using` has no __extension__ in clang

constexpr int kWideDigits = 38;

// From here on a double has no decimals: it is its own nearest multiple as far as it can tell.
constexpr double kEveryWholeNumberBelow = 9007199254740992;

// digits * 10^exponent
struct Decimal {
  Wide digits = 0;
  int exponent = 0;
};

// The shortest digits that read back as the number.
Decimal decimalOf(double magnitude) {
  std::array<char, 32> buffer{};
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, std::chars_format::scientific);
  const std::string text(buffer.data(), end.ptr);
  const std::size_t e = text.find('e');
  Decimal decimal;
  int fraction = 0;
  for (std::size_t i = 0; i < e; ++i) {
    if (text[i] == '.') continue;
    decimal.digits = decimal.digits * 10 + static_cast<unsigned>(text[i] - '0');
    if (i > 1) ++fraction;
  }
  decimal.exponent = std::stoi(text.substr(e + 1)) - fraction;
  return decimal;
}

int digitCount(Wide value) {
  int count = 0;
  for (; value > 0; value /= 10) ++count;
  return count;
}

// Writes the value with a lower exponent; false when it does not fit.
bool lowerExponent(Decimal& decimal, int exponent) {
  const int steps = decimal.exponent - exponent;
  if (decimal.digits != 0 && digitCount(decimal.digits) + steps > kWideDigits) return false;
  for (int i = 0; i < steps; ++i) decimal.digits *= 10;
  decimal.exponent = exponent;
  return true;
}

double toDouble(Decimal decimal) {
  std::string text;
  do {
    text += static_cast<char>('0' + static_cast<int>(decimal.digits % 10));
    decimal.digits /= 10;
  } while (decimal.digits > 0);
  std::reverse(text.begin(), text.end());
  text += 'e';
  text += std::to_string(decimal.exponent);
  double value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec != std::errc::result_out_of_range) return value;
  return decimal.exponent > 0 ? std::numeric_limits<double>::infinity() : 0;
}

}  // namespace

std::optional<double> roundToMultiple(double value, double multiple) {
  if (multiple == 0) return std::nullopt;
  if (!std::isfinite(value) || !std::isfinite(multiple)) return value;
  Decimal number = decimalOf(std::abs(value));
  Decimal step = decimalOf(std::abs(multiple));
  const int exponent = std::min(number.exponent, step.exponent);
  if (!lowerExponent(number, exponent) || !lowerExponent(step, exponent)) {
    const double quotient = value / multiple;
    return std::abs(quotient) < kEveryWholeNumberBelow ? std::round(quotient) * multiple : value;
  }
  const Wide rest = number.digits % step.digits;
  const bool up = rest >= step.digits - rest;
  const Decimal rounded{number.digits - rest + (up ? step.digits : 0), exponent};
  const double magnitude = toDouble(rounded);
  return value < 0 && magnitude != 0 ? -magnitude : magnitude;
}

double roundToDecimals(double value, int decimals) {
  return roundToMultiple(value, toDouble({1, -decimals})).value_or(value);
}

}  // namespace motor
