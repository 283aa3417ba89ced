#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>

#include "motor/language/charset.h"
#include "motor/language/decimal_rounding.h"
#include "motor/language/function_table.h"
#include "motor/language/like_pattern.h"
#include "motor/language/number_format.h"
#include "motor/language/text_limit.h"
#include "text/failure.h"
#include "text/number_text.h"
#include "text/utf8.h"

// The functions that need nothing but their arguments.
namespace motor {

namespace {

// --- numbers ---

Value absolute(const Arguments& a) { return std::abs(a.number(0)); }
Value integerPart(const Arguments& a) { return std::floor(a.number(0)); }
Value fix(const Arguments& a) { return std::trunc(a.number(0)); }
Value exponential(const Arguments& a) { return std::exp(a.number(0)); }

Value signOf(const Arguments& a) {
  const double n = a.number(0);
  return n > 0 ? 1 : n < 0 ? -1 : 0;
}

Value squareRoot(const Arguments& a) {
  if (a.number(0) < 0) a.reject(0, "no puede ser negativo");
  return std::sqrt(a.number(0));
}

Value logarithm(const Arguments& a) {
  if (a.number(0) <= 0) a.reject(0, "tiene que ser mayor que cero");
  return std::log(a.number(0));
}

// Angles are in radians.
Value sine(const Arguments& a) { return std::sin(a.number(0)); }
Value cosine(const Arguments& a) { return std::cos(a.number(0)); }
Value tangent(const Arguments& a) { return std::tan(a.number(0)); }
Value arcTangent(const Arguments& a) { return std::atan(a.number(0)); }

Value greatest(const Arguments& a) { return std::max(a.number(0), a.number(1)); }
Value least(const Arguments& a) { return std::min(a.number(0), a.number(1)); }

Value roundTo(const Arguments& a) {
  const auto rounded = roundToMultiple(a.number(0), a.number(1));
  if (!rounded) a.reject(1, "no puede ser cero");
  return *rounded;
}

Value colour(const Arguments& a) {
  int value = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    const int part = a.integer(i);
    if (part < 0 || part > 255) a.reject(i, "tiene que estar entre 0 y 255");
    value = value * 256 + part;
  }
  return value;
}

// --- texts ---

std::size_t countAt(const Arguments& a, std::size_t i, int minimum) {
  const int count = a.integer(i);
  if (count < minimum) a.reject(i, minimum == 0 ? "no puede ser negativo" : "tiene que ser 1 o más");
  return static_cast<std::size_t>(count);
}

Value character(const Arguments& a) {
  const int code = a.integer(0);
  if (code < 0 || code > 255) a.reject(0, "tiene que estar entre 0 y 255");
  const bool isControl = code < 32 && code != '\t' && code != '\n' && code != '\r';
  if (isControl || code == 127) a.reject(0, "es un carácter de control");
  const char byte = static_cast<char>(code);
  return toUtf8({&byte, 1}, Charset::windowsLatin1);
}

Value codeOf(const Arguments& a) {
  const std::string first = text::left(a.text(0), 1);
  if (first.empty()) return 0;
  for (int code = 0; code < 256; ++code) {
    const char byte = static_cast<char>(code);
    if (toUtf8({&byte, 1}, Charset::windowsLatin1) == first) return code;
  }
  return static_cast<double>(text::decode(first).front());
}

Value textOf(const Arguments& a) { return a.text(0); }

// The number that a text begins with, 0 when it begins with none.
Value numberIn(const Arguments& a) {
  const std::string trimmed = text::trim(a.text(0));
  const bool negative = trimmed.starts_with('-');
  const std::size_t begin = negative || trimmed.starts_with('+') ? 1 : 0;
  const char* first = trimmed.data() + begin;
  const char* last = trimmed.data() + trimmed.size();
  double number = 0;
  if (first != last && (*first == '.' || (*first >= '0' && *first <= '9'))) std::from_chars(first, last, number);
  return negative ? -number : number;
}

Value upperCase(const Arguments& a) { return text::upper(a.text(0)); }
Value lowerCase(const Arguments& a) { return text::lower(a.text(0)); }
Value leftPart(const Arguments& a) { return text::left(a.text(0), countAt(a, 1, 0)); }
Value middlePart(const Arguments& a) { return text::mid(a.text(0), countAt(a, 1, 1), countAt(a, 2, 0)); }
Value lengthOf(const Arguments& a) { return static_cast<double>(text::length(a.text(0))); }

Value rightPart(const Arguments& a) {
  const std::string s = a.text(0);
  const std::size_t length = text::length(s);
  return text::mid(s, length - std::min(length, countAt(a, 1, 0)) + 1);
}

Value positionOf(const Arguments& a) { return static_cast<double>(text::find(a.text(1), a.text(2), countAt(a, 0, 1))); }

Value withoutLeadingBlanks(const Arguments& a) {
  const std::string s = a.text(0);
  return s.substr(std::min(s.find_first_not_of(' '), s.size()));
}

Value withoutTrailingBlanks(const Arguments& a) {
  const std::string s = a.text(0);
  return s.substr(0, s.find_last_not_of(' ') + 1);
}

std::size_t repetitions(const Arguments& a) {
  const std::size_t count = countAt(a, 0, 0);
  if (count > kLongestText) a.reject(0, "el texto sería demasiado largo");
  return count;
}

Value blanks(const Arguments& a) { return std::string(repetitions(a), ' '); }

Value repeated(const Arguments& a) {
  const std::string one = text::left(a.text(1), 1);
  const std::size_t count = repetitions(a);
  if (count * one.size() > kLongestText) a.reject(0, "el texto sería demasiado largo");
  std::string result;
  for (std::size_t i = 0; i < count; ++i) result += one;
  return result;
}

// Every word begins with a capital; the rest is in lower case.
Value properCase(const Arguments& a) {
  std::string result;
  bool first = true;
  for (const std::string& c : text::characters(a.text(0))) {
    result += first ? text::upper(c) : text::lower(c);
    first = c == " ";
  }
  return result;
}

Value compareExactly(const Arguments& a) {
  const int ordering = a.text(0).compare(a.text(1));
  return ordering > 0 ? 1 : ordering < 0 ? -1 : 0;
}

Value like(const Arguments& a) { return likeExactly(a.text(0), a.text(1), a.count() > 2 ? a.text(2) : ""); }

Value formatted(const Arguments& a) {
  const std::string pattern = a.text(1);
  if (pattern.size() > kLongestPattern) a.reject(1, "el formato es demasiado largo");
  return formatByPattern(a.number(0), pattern);
}

// A number, or a text that spells one.
double numberOrSpelled(const Arguments& a) {
  if (a[0].text() == nullptr) return a.number(0);
  try {
    if (!text::trim(*a[0].text()).empty()) return text::toNumber(*a[0].text());
  } catch (const Failure&) {
    a.reject(0, "el texto no es un número");
  }
  a.reject(0, "el texto no es un número");
}

// --- dates, texts of the form 20021231 ---

Value today(const Arguments& /*a*/) {
  const std::chrono::year_month_day date(std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()));
  const int number = static_cast<int>(date.year()) * 10000 +
                     static_cast<int>(static_cast<unsigned>(date.month())) * 100 +
                     static_cast<int>(static_cast<unsigned>(date.day()));
  return std::to_string(number);
}

// Digits of a date; a text that is none has no value.
template <std::size_t kFirst, std::size_t kCount>
Value partOfDate(const Arguments& a) {
  const std::string date = a.text(0);
  constexpr std::size_t kLength = 8;
  if (date.size() < kLength ||
      !std::all_of(date.begin(), date.begin() + kLength, [](char c) { return c >= '0' && c <= '9'; }))
    a.reject(0, "se esperaba una fecha");
  return std::stoi(date.substr(kFirst, kCount));
}

constexpr std::array kFunctions = {
    FunctionEntry{"atn", 1, 1, arcTangent},
    FunctionEntry{"cos", 1, 1, cosine},
    FunctionEntry{"curdate", 0, 0, today},
    FunctionEntry{"day", 1, 1, partOfDate<6, 2>},
    FunctionEntry{"month", 1, 1, partOfDate<4, 2>},
    FunctionEntry{"sin", 1, 1, sine},
    FunctionEntry{"tan", 1, 1, tangent},
    FunctionEntry{"year", 1, 1, partOfDate<0, 4>},
    FunctionEntry{"abs", 1, 1, absolute},
    FunctionEntry{"asc", 1, 1, codeOf},
    FunctionEntry{"chr$", 1, 1, character},
    FunctionEntry{"exp", 1, 1, exponential},
    FunctionEntry{"fix", 1, 1, fix},
    FunctionEntry{"format$", 2, 2, formatted},
    FunctionEntry{"instr", 3, 3, positionOf},
    FunctionEntry{"int", 1, 1, integerPart},
    FunctionEntry{"lcase$", 1, 1, lowerCase},
    FunctionEntry{"left$", 2, 2, leftPart},
    FunctionEntry{"len", 1, 1, lengthOf},
    FunctionEntry{"like", 2, 3, like},
    FunctionEntry{"log", 1, 1, logarithm},
    FunctionEntry{"ltrim$", 1, 1, withoutLeadingBlanks},
    FunctionEntry{"maximum", 2, 2, greatest},
    FunctionEntry{"mid$", 3, 3, middlePart},
    FunctionEntry{"minimum", 2, 2, least},
    FunctionEntry{"proper$", 1, 1, properCase},
    FunctionEntry{"rgb", 3, 3, colour},
    FunctionEntry{"right$", 2, 2, rightPart},
    FunctionEntry{"round", 2, 2, roundTo},
    FunctionEntry{"rtrim$", 1, 1, withoutTrailingBlanks},
    FunctionEntry{"sgn", 1, 1, signOf},
    FunctionEntry{"space$", 1, 1, blanks},
    FunctionEntry{"sqr", 1, 1, squareRoot},
    FunctionEntry{"str$", 1, 1, textOf},
    FunctionEntry{"string$", 2, 2, repeated},
    FunctionEntry{"stringcompare", 2, 2, compareExactly},
    FunctionEntry{"ucase$", 1, 1, upperCase},
    FunctionEntry{"val", 1, 1, numberIn},
};

}  // namespace

FunctionTable pureFunctions(const NumberSigns& signs) {
  FunctionTable table;
  table.add(kFunctions);
  table.add("formatnumber$", 1, 1,
            [signs](const Arguments& a) { return Value(formatNumber(numberOrSpelled(a), signs)); });
  return table;
}

}  // namespace motor
