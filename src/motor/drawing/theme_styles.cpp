#include "motor/drawing/theme_styles.h"

#include <algorithm>
#include <variant>

#include "motor/drawing/row_scope.h"
#include "text/utf8.h"

namespace motor {

namespace {

// As `=` compares: texts without regard to case.
bool areEqual(const Value& a, const Value& b) {
  if (a.text() != nullptr && b.text() != nullptr) return text::equalsIgnoringCase(*a.text(), *b.text());
  return a == b;
}

bool contains(const ThemeClass& theme, const Value& value) {
  if (theme.maximum.isEmpty()) return areEqual(theme.minimum, value);
  const double* number = value.number();
  const double* minimum = theme.minimum.number();
  const double* maximum = theme.maximum.number();
  return number != nullptr && minimum != nullptr && maximum != nullptr && *minimum <= *number && *number < *maximum;
}

}  // namespace

ThemeStyles::ThemeStyles(const Layer& layer) : layer_(layer), functions_(pureFunctions()) {
  const Shade& theme = *layer.theme;
  const RowScope scope(layer, 1, functions_);
  try {
    for (const ExpressionPtr& value : theme.ignored) ignored_.push_back(value->evaluate(scope));
    if (const auto* ranges = std::get_if<ShadeRanges>(&theme.kind)) addClasses(*ranges, scope);
    if (const auto* values = std::get_if<ShadeValues>(&theme.kind)) addClasses(*values, scope);
  } catch (const LanguageError&) {
    classes_.clear();
  }
}

void ThemeStyles::addClasses(const ShadeRanges& theme, const Scope& scope) {
  for (const ShadeRange& range : theme.ranges) {
    classes_.push_back({range.minimum->evaluate(scope), range.maximum->evaluate(scope), evaluate(range.style, scope)});
  }
  if (theme.otherwise) otherwise_ = evaluate(*theme.otherwise, scope);
}

void ThemeStyles::addClasses(const ShadeValues& theme, const Scope& scope) {
  for (const ShadeValue& value : theme.values) {
    classes_.push_back({value.value->evaluate(scope), Value(), evaluate(value.style, scope)});
  }
  if (theme.otherwise) otherwise_ = evaluate(*theme.otherwise, scope);
}

std::optional<Styles> ThemeStyles::of(RowId row) const {
  if (layer_.theme->with.empty() || classes_.empty()) return std::nullopt;
  Value value;
  try {
    value = layer_.theme->with.front().expression->evaluate(RowScope(layer_, row, functions_));
  } catch (const LanguageError&) {
    return std::nullopt;
  }
  const auto isValue = [&](const Value& other) { return areEqual(other, value); };
  if (std::any_of(ignored_.begin(), ignored_.end(), isValue)) return std::nullopt;
  for (const ThemeClass& theme : classes_) {
    if (contains(theme, value)) return theme.styles;
  }
  return otherwise_;
}

}  // namespace motor
