#include "motor/language/comparison.h"

#include <algorithm>

#include "text/collation.h"
#include "text/utf8.h"

namespace motor {

namespace {

std::string_view withoutTrailingBlanks(std::string_view s) { return s.substr(0, s.find_last_not_of(' ') + 1); }

bool isAscii(std::string_view s) {
  return std::all_of(s.begin(), s.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// Nothing and the empty text, which compare as the same.
bool isBlank(const Value& value) {
  const std::string* text = value.text();
  return value.isEmpty() || (text != nullptr && withoutTrailingBlanks(*text).empty());
}

// A logical as the type it is compared with.
Value as(const Value& logical, const Value& other) {
  if (other.text() != nullptr) return logical.toText();
  if (other.number() != nullptr) return *logical.logical() ? 1 : 0;
  return logical;
}

std::optional<std::weak_ordering> orderSameType(const Value& a, const Value& b) {
  if (a.text() != nullptr && b.text() != nullptr) return orderTexts(*a.text(), *b.text());
  if (a.number() != nullptr && b.number() != nullptr) {
    if (*a.number() == *b.number()) return std::weak_ordering::equivalent;
    return *a.number() < *b.number() ? std::weak_ordering::less : std::weak_ordering::greater;
  }
  if (a.logical() != nullptr && b.logical() != nullptr) return *a.logical() <=> *b.logical();
  return std::nullopt;
}

}  // namespace

std::optional<bool> equals(const Value& a, const Value& b) {
  if (a.text() != nullptr && b.text() != nullptr) return equalTexts(*a.text(), *b.text());
  if (a.object() != nullptr && b.object() != nullptr) return *a.object() == *b.object();
  const auto ordering = order(a, b);
  if (!ordering) return std::nullopt;
  return std::is_eq(*ordering);
}

std::optional<std::weak_ordering> order(const Value& a, const Value& b) {
  if (a.isEmpty() || b.isEmpty()) {
    if (isBlank(a) && isBlank(b)) return std::weak_ordering::equivalent;
    return a.isEmpty() ? std::weak_ordering::less : std::weak_ordering::greater;
  }
  if (a.logical() != nullptr) return orderSameType(as(a, b), b);
  if (b.logical() != nullptr) return orderSameType(a, as(b, a));
  return orderSameType(a, b);
}

std::optional<bool> truth(const Value& value) {
  if (value.text() != nullptr) return std::nullopt;
  if (const bool* b = value.logical()) return *b;
  if (const double* n = value.number()) return *n != 0;
  return value.object() != nullptr && *value.object() != nullptr;
}

bool equalTexts(std::string_view a, std::string_view b) {
  a = withoutTrailingBlanks(a);
  b = withoutTrailingBlanks(b);
  return a == b || text::equalsIgnoringCase(a, b) ||
         (!isAscii(a) && !isAscii(b) && text::equalsIgnoringCase(text::compose(a), text::compose(b)));
}

std::string foldedForEquality(std::string_view s) {
  s = withoutTrailingBlanks(s);
  return text::lower(isAscii(s) ? std::string(s) : text::compose(s));
}

std::weak_ordering orderTexts(std::string_view a, std::string_view b) {
  if (equalTexts(a, b)) return std::weak_ordering::equivalent;
  return text::collate(withoutTrailingBlanks(a), withoutTrailingBlanks(b));
}

std::optional<bool> compare(const Value& left, Operator op, const Value& right) {
  if (op == Operator::equal || op == Operator::notEqual) {
    const auto same = equals(left, right);
    return same ? std::optional(*same == (op == Operator::equal)) : std::nullopt;
  }
  const auto ordering = order(left, right);
  return ordering ? std::optional(satisfies(*ordering, op)) : std::nullopt;
}

bool satisfies(std::weak_ordering ordering, Operator op) {
  switch (op) {
    case Operator::less:
      return std::is_lt(ordering);
    case Operator::lessOrEqual:
      return std::is_lteq(ordering);
    case Operator::greater:
      return std::is_gt(ordering);
    case Operator::greaterOrEqual:
      return std::is_gteq(ordering);
    case Operator::notEqual:
      return std::is_neq(ordering);
    default:
      return std::is_eq(ordering);
  }
}

}  // namespace motor
