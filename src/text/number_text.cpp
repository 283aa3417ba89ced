#include "text/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "text/failure.h"
#include "text/utf8.h"

namespace text {
namespace {

constexpr double kExponentFrom = 1e15;
constexpr std::size_t kLongestPlain = 40;

template <class Integer>
Integer toInteger(std::string_view s) {
  const double rounded = std::nearbyint(toNumber(s));
  if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
    throw failures::overflow();
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

std::string plainNumber(double value) {
  if (value == 0) return "0";
  std::array<char, 32> buffer{};
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value), std::chars_format::scientific);
  std::string digits(buffer.data(), end.ptr);
  const std::size_t e = digits.find('e');
  const int exponent = std::stoi(digits.substr(e + 1));
  digits.erase(e);
  if (digits.size() > 1) digits.erase(1, 1);
  if (exponent < 0) {
    digits.insert(0, "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0'));
  } else {
    const std::size_t whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() < whole) digits.append(whole - digits.size(), '0');
    if (digits.size() > whole) digits.insert(whole, 1, '.');
  }
  return value < 0 ? "-" + digits : digits;
}

std::string number(double value) {
  if (std::fabs(value) < kExponentFrom) {
    std::string plain = plainNumber(value);
    if (plain.size() <= kLongestPlain + (value < 0 ? 1U : 0U)) return plain;
  }
  std::array<char, 32> buffer{};
  return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr};
}

std::string number(std::int64_t value) { return std::to_string(value); }

double toNumber(std::string_view s) {
  const std::string trimmed = trim(s);
  std::string_view digits = trimmed;
  if (digits.empty()) return 0;
  if (digits.front() == '+') digits.remove_prefix(1);
  const bool startsAsNumber = !digits.empty() && (digits.front() == '-' || digits.front() == '.' ||
                                                  (digits.front() >= '0' && digits.front() <= '9'));
  double value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error == std::errc::result_out_of_range) throw failures::overflow();
  if (!startsAsNumber || error != std::errc{} || end != digits.data() + digits.size() || !std::isfinite(value)) {
    throw failures::typeMismatch();
  }
  return value;
}

std::int16_t toInt16(std::string_view s) { return toInteger<std::int16_t>(s); }
std::int32_t toInt32(std::string_view s) { return toInteger<std::int32_t>(s); }

}  // namespace text
