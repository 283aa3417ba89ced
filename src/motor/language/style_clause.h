#pragma once

#include <optional>
#include <vector>

#include "motor/language/expression.h"
#include "motor/language/styles.h"

namespace motor {

// Style clauses as written: Pen (...), Brush (...), Symbol (...), Font (...), with expressions as arguments.
struct StyleClause {
  enum class Kind { pen, line, brush, symbol, font };

  Position position;
  Kind kind = Kind::pen;
  std::vector<ExpressionPtr> arguments;
};

// The style clauses that stand together, at most one of a kind; of two the later counts.
struct StyleList {
  std::optional<StyleClause> pen;
  std::optional<StyleClause> line;
  std::optional<StyleClause> brush;
  std::optional<StyleClause> symbol;
  std::optional<StyleClause> font;

  [[nodiscard]] bool isEmpty() const { return !pen && !line && !brush && !symbol && !font; }
};

// The styles that a list gives; what is not given stays empty.
struct Styles {
  std::optional<Pen> pen;
  std::optional<Pen> line;
  std::optional<Brush> brush;
  std::optional<Symbol> symbol;
  std::optional<Font> font;
  bool operator==(const Styles&) const = default;
};

// Throw LanguageError for an argument that is missing, too many or not of the clause's type.
[[nodiscard]] Styles evaluate(const StyleList& list, const Scope& scope);
[[nodiscard]] Pen evaluatePen(const StyleClause& clause, const Scope& scope);
[[nodiscard]] Brush evaluateBrush(const StyleClause& clause, const Scope& scope);
[[nodiscard]] Symbol evaluateSymbol(const StyleClause& clause, const Scope& scope);
[[nodiscard]] Font evaluateFont(const StyleClause& clause, const Scope& scope);

}  // namespace motor
