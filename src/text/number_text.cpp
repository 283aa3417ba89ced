#include "text/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "text/failure.h"
#include "text/utf8.h"

namespace text {
namespace {

template <class Integer>
Integer toInteger(std::string_view s) {
  const double rounded = std::nearbyint(toNumber(s));
  if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
    throw failures::overflow();
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

std::string number(double value) {
  if (value == 0) return "0";
  std::array<char, 512> buffer{};
  const bool isPlain = std::fabs(value) < 1e15 && std::fabs(value) >= 1e-15;
  const auto format = isPlain ? std::chars_format::fixed : std::chars_format::general;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format).ptr;
  return {buffer.data(), end};
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
