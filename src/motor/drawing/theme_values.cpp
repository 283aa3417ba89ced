#include "motor/drawing/theme_values.h"

#include <algorithm>
#include <limits>

#include "motor/drawing/pens.h"
#include "motor/drawing/row_scope.h"
#include "motor/map/projected_objects.h"
#include "text/utf8.h"

namespace motor {

namespace {

constexpr RowId kNoRow = 0;
constexpr double kPixelsPerInch = 96;
constexpr double kMetresPerInch = 0.0254;

Value asNumber(const Value& value) { return value.logical() == nullptr ? value : Value(*value.logical() ? 1.0 : 0.0); }

}  // namespace

std::string shadedName(const Layer& theme) {
  const std::size_t number = theme.name.rfind('(');
  return number == std::string::npos ? theme.name : theme.name.substr(0, number);
}

bool areSame(const Value& a, const Value& b) {
  if (a.text() != nullptr && b.text() != nullptr) return text::equalsIgnoringCase(*a.text(), *b.text());
  return asNumber(a) == asNumber(b);
}

ThemeValues::ThemeValues(const Layer& layer) : functions_(pureFunctions()) {
  base_.name = shadedName(layer);
  base_.table = layer.table;
  for (const ExpressionPtr& value : layer.theme->ignored) ignored_.push_back(constant(*value));
}

std::vector<std::optional<Value>> ThemeValues::ofObjects(const Expression& expression) const {
  const auto set = projectedObjects(base_.table, base_.table->coordinateSystem());
  std::vector<std::optional<Value>> values(set->objects().size());
  for (std::uint32_t i = 0; i < values.size(); ++i) {
    try {
      Value value = expression.evaluate(RowScope(base_, set->rowsOf(i).front(), functions_));
      const auto isValue = [&](const Value& other) { return areSame(other, value); };
      if (std::none_of(ignored_.begin(), ignored_.end(), isValue)) values[i] = std::move(value);
    } catch (const LanguageError&) {
    } catch (const EngineError&) {
    }
  }
  return values;
}

std::vector<double> ThemeValues::numbersOfObjects(const Expression& expression) const {
  std::vector<double> numbers;
  for (const std::optional<Value>& value : ofObjects(expression)) {
    const double* number = value ? value->number() : nullptr;
    numbers.push_back(number == nullptr ? std::numeric_limits<double>::quiet_NaN() : *number);
  }
  return numbers;
}

Value ThemeValues::constant(const Expression& expression) const {
  return expression.evaluate(RowScope(base_, kNoRow, functions_));
}

double ThemeValues::number(const ExpressionPtr& expression) const {
  const Value value = constant(*expression);
  if (value.number() == nullptr) throw LanguageError(expression->position(), value.toText(), "se esperaba un número");
  return *value.number();
}

Styles ThemeValues::styles(const StyleList& list) const { return evaluate(list, RowScope(base_, kNoRow, functions_)); }

Symbol ThemeValues::symbol(const StyleClause& clause) const {
  return evaluateSymbol(clause, RowScope(base_, kNoRow, functions_));
}

Pen ThemeValues::pen(const StyleClause& clause) const {
  return evaluatePen(clause, RowScope(base_, kNoRow, functions_));
}

Brush ThemeValues::brush(const StyleClause& clause) const {
  return evaluateBrush(clause, RowScope(base_, kNoRow, functions_));
}

Font ThemeValues::font(const StyleClause& clause) const {
  return evaluateFont(clause, RowScope(base_, kNoRow, functions_));
}

double ThemeValues::paperPixels(const Measure& length) const {
  const double value = number(length.value);
  if (length.unit.empty()) return value * kPixelsPerInch;
  if (text::equalsIgnoringCase(length.unit, "pt")) return value * kPixelsPerPoint;
  return value * metresPerDistanceUnit(length.unit) / kMetresPerInch * kPixelsPerInch;
}

}  // namespace motor
