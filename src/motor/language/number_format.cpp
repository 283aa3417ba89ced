#include "motor/language/number_format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <vector>

#include "motor/language/decimal_rounding.h"
#include "text/number_text.h"

namespace motor {

namespace {

std::string withThousands(const std::string& digits, std::string_view sign) {
  std::string grouped;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) grouped += sign;
    grouped += digits[i];
  }
  return grouped;
}

bool isPlaceholder(char c) { return c == '#' || c == '0'; }

// One of a pattern's sections, taken apart.
struct Section {
  std::string before;  // literal text around the number
  std::string after;
  int wholeZeros = 0;       // at least so many digits before the point
  int decimals = 0;         // at most so many after it
  int decimalZeros = 0;     // at least so many
  int exponentDigits = -1;  // at least so many digits of exponent; -1: no exponent
  bool exponentPlus = false;
  bool thousands = false;
  int percents = 0;
  bool hasNumber = false;
};

class SectionReader {
 public:
  explicit SectionReader(std::string_view pattern) : pattern_(pattern) {}

  Section read() {
    for (; next_ < pattern_.size(); ++next_) readOne(pattern_[next_]);
    return section_;
  }

 private:
  void readOne(char c) {
    if (isPlaceholder(c)) {
      readPlaceholder(c);
    } else if (c == '.' && !inDecimals_) {
      inDecimals_ = true;
      section_.hasNumber = true;
    } else if (c == ',') {
      section_.thousands = true;
    } else if ((c == 'E' || c == 'e') && readExponent()) {
      return;
    } else {
      readLiteral(c);
    }
  }

  void readPlaceholder(char c) {
    section_.hasNumber = true;
    if (inDecimals_) {
      ++section_.decimals;
      if (c == '0') section_.decimalZeros = section_.decimals;
    } else if (c == '0' || section_.wholeZeros > 0) {
      ++section_.wholeZeros;
    }
  }

  bool readExponent() {
    if (next_ + 1 >= pattern_.size() || !section_.hasNumber) return false;
    const char sign = pattern_[next_ + 1];
    if (sign != '+' && sign != '-') return false;
    section_.exponentPlus = sign == '+';
    section_.exponentDigits = 0;
    ++next_;
    while (next_ + 1 < pattern_.size() && isPlaceholder(pattern_[next_ + 1])) {
      ++section_.exponentDigits;
      ++next_;
    }
    return true;
  }

  void readLiteral(char c) {
    if (c == '\\' && next_ + 1 < pattern_.size())
      c = pattern_[++next_];
    else if (c == '%')
      ++section_.percents;
    (section_.hasNumber ? section_.after : section_.before) += c;
  }

  std::string_view pattern_;
  std::size_t next_ = 0;
  bool inDecimals_ = false;
  Section section_;
};

std::vector<std::string_view> sections(std::string_view pattern) {
  std::vector<std::string_view> parts;
  std::size_t begin = 0;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (pattern[i] == '\\') {
      ++i;
    } else if (pattern[i] == ';') {
      parts.push_back(pattern.substr(begin, i - begin));
      begin = i + 1;
    }
  }
  parts.push_back(pattern.substr(begin));
  return parts;
}

// The digits with exactly so many decimals, without a sign.
std::string fixedDigits(double magnitude, int decimals) {
  std::array<char, 400 + kLongestPattern> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), roundToDecimals(magnitude, decimals),
                                 std::chars_format::fixed, decimals);
  return {buffer.data(), end.ptr};
}

std::string digitsOf(double magnitude, const Section& section) {
  std::string digits = fixedDigits(magnitude, section.decimals);
  const std::size_t point = std::min(digits.find('.'), digits.size());
  std::string whole = digits.substr(0, point);
  std::string fraction = point < digits.size() ? digits.substr(point + 1) : "";
  while (static_cast<int>(fraction.size()) > section.decimalZeros && fraction.back() == '0') fraction.pop_back();
  if (whole == "0" && section.wholeZeros == 0) whole.clear();
  while (static_cast<int>(whole.size()) < section.wholeZeros) whole.insert(whole.begin(), '0');
  if (section.thousands) whole = withThousands(whole, ",");
  if (section.decimalZeros == 0 && fraction.empty()) return whole;
  return whole + "." + fraction;
}

std::string scientific(double magnitude, const Section& section) {
  std::array<char, 32> buffer{};
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, std::chars_format::scientific);
  double mantissa = 0;
  const char* e = std::from_chars(buffer.data(), end.ptr, mantissa, std::chars_format::fixed).ptr;
  int exponent = std::stoi(std::string(e + 1, static_cast<const char*>(end.ptr)));
  if (roundToDecimals(mantissa, section.decimals) >= 10) {
    mantissa /= 10;
    ++exponent;
  }
  std::string digits = std::to_string(std::abs(exponent));
  while (static_cast<int>(digits.size()) < section.exponentDigits) digits.insert(digits.begin(), '0');
  const std::string sign = exponent < 0 ? "-" : section.exponentPlus ? "+" : "";
  return digitsOf(mantissa, section) + "E" + sign + digits;
}

}  // namespace

std::string formatNumber(double value, const NumberSigns& signs) {
  std::string digits = text::plainNumber(value);
  const bool negative = digits.front() == '-';
  if (negative) digits.erase(0, 1);
  const std::size_t point = std::min(digits.find('.'), digits.size());
  std::string result = negative ? "-" : "";
  result += withThousands(digits.substr(0, point), signs.thousands);
  if (point < digits.size()) result += signs.decimal + digits.substr(point + 1);
  return result;
}

std::string formatByPattern(double value, std::string_view pattern) {
  if (pattern.size() > kLongestPattern) throw EngineError("el formato es demasiado largo");
  const std::vector<std::string_view> parts = sections(pattern);
  const bool ownNegative = value < 0 && parts.size() > 1;
  const Section section = SectionReader(parts[ownNegative ? 1 : 0]).read();
  if (!section.hasNumber) return section.before;
  const double magnitude = std::abs(value) * std::pow(100, std::min(section.percents, 8));
  if (!std::isfinite(magnitude)) throw EngineError("el resultado no es un número finito");
  const std::string digits =
      section.exponentDigits >= 0 ? scientific(magnitude, section) : digitsOf(magnitude, section);
  const bool isZero = digits.find_first_of("123456789") == std::string::npos;
  return (value < 0 && !ownNegative && !isZero ? "-" : "") + section.before + digits + section.after;
}

}  // namespace motor
