#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

#include "motor/language/operators.h"
#include "motor/language/value.h"

namespace motor {

// How values compare. Texts: `=` ignores case (accents count), `<` and `>` follow the Spanish collation, Like ignores
// case and accents. A logical compares with a number as 1 or 0 and with a text as "T" or "F"; a number with a text does
// not compare (none). Nothing equals nothing and the empty text, and comes before everything else.

[[nodiscard]] std::optional<bool> equals(const Value& a, const Value& b);
[[nodiscard]] std::optional<std::weak_ordering> order(const Value& a, const Value& b);

// Whether a value counts as true: a logical, a number that is not 0, an object that is there; nothing is false. None
// for a text.
[[nodiscard]] std::optional<bool> truth(const Value& value);

// Whether two texts are the same but for case and trailing blanks.
[[nodiscard]] bool equalTexts(std::string_view a, std::string_view b);

// Two texts are the same in this way when these are.
[[nodiscard]] std::string foldedForEquality(std::string_view text);

// The order of texts under `<` and `>`: equal texts are equivalent.
[[nodiscard]] std::weak_ordering orderTexts(std::string_view a, std::string_view b);

// Whether `left op right` with an operator of = <> < <= > >=; none where the values do not compare.
[[nodiscard]] std::optional<bool> compare(const Value& left, Operator op, const Value& right);

// The same of what is in this order.
[[nodiscard]] bool satisfies(std::weak_ordering ordering, Operator op);

}  // namespace motor
