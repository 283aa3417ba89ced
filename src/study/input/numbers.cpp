#include "study/input/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace study {

namespace {

bool isWhole(std::string_view digits) {
  return !digits.empty() && std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Digits with one decimal sign, or with signs that set thousands apart.
bool isFractional(std::string_view field) {
  return field.find_first_of(".,") != std::string_view::npos && field.find_first_of("0123456789") == 0 &&
         field.find_first_not_of("0123456789.,") == std::string_view::npos;
}

}  // namespace

std::optional<long> readCount(const CsvFile& file, std::string_view field, std::string_view what) {
  const auto name = [&] { return "the " + std::string(what) + " " + inQuotes(field); };
  if (isWhole(field)) {
    long number = 0;
    const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number);
    if (error == std::errc() && number <= kLargestCount) return number;
    file.fault(FaultKind::tooLargeNumber, name() + " is too large",
               "give one of at most " + std::to_string(kLargestCount));
  } else if (field.starts_with('-') && isWhole(field.substr(1))) {
    file.fault(FaultKind::negativeNumber, name() + " is negative", "give 0 or more");
  } else if (isFractional(field)) {
    file.fault(FaultKind::fractionalNumber, name() + " is no whole number",
               "give a whole number, without a decimal sign and without signs between thousands");
  } else {
    file.fault(FaultKind::notANumber, name() + " is no number", "write it in digits");
  }
  return std::nullopt;
}

std::optional<double> readNumber(const CsvFile& file, std::string_view field, std::string_view what) {
  std::string digits(field);
  if (file.hasDecimalComma()) std::replace(digits.begin(), digits.end(), ',', '.');
  double number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error == std::errc() && end == digits.data() + digits.size() && std::isfinite(number)) return number;
  file.fault(FaultKind::notANumber, "the " + std::string(what) + " " + inQuotes(field) + " is no number",
             "write it in digits");
  return std::nullopt;
}

}  // namespace study
