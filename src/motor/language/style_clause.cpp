#include "motor/language/style_clause.h"

#include <cmath>
#include <limits>

namespace motor {

namespace {

constexpr int kFontSymbolArguments = 6;
constexpr int kPictureArguments = 4;

// The arguments of one clause, evaluated.
class ClauseArguments {
 public:
  ClauseArguments(const StyleClause& clause, const Scope& scope, const char* word, std::size_t minimum,
                  std::size_t maximum)
      : clause_(clause), word_(word) {
    if (clause.arguments.size() < minimum || clause.arguments.size() > maximum) {
      throw LanguageError(clause.position, word, "número de argumentos incorrecto");
    }
    for (const ExpressionPtr& argument : clause.arguments) values_.push_back(argument->evaluate(scope));
  }

  [[nodiscard]] bool has(std::size_t i) const { return i < values_.size(); }
  [[nodiscard]] bool isText(std::size_t i) const { return values_[i].text() != nullptr; }

  [[nodiscard]] const std::string& text(std::size_t i) const {
    if (!isText(i)) reject(i, "se esperaba un texto");
    return *values_[i].text();
  }
  [[nodiscard]] double number(std::size_t i) const {
    if (values_[i].number() == nullptr) reject(i, "se esperaba un número");
    return *values_[i].number();
  }
  [[nodiscard]] int integer(std::size_t i) const {
    const double rounded = std::round(number(i));
    if (!(std::abs(rounded) <= std::numeric_limits<int>::max())) reject(i, "el número es demasiado grande");
    return static_cast<int>(rounded);
  }

 private:
  [[noreturn]] void reject(std::size_t i, const std::string& reason) const {
    throw LanguageError(clause_.arguments[i]->position(), word_, "argumento " + std::to_string(i + 1) + ": " + reason);
  }

  const StyleClause& clause_;
  const char* word_;
  std::vector<Value> values_;
};

Symbol fontSymbol(const ClauseArguments& arguments) {
  Symbol symbol;
  symbol.shape = arguments.integer(0);
  symbol.colour = arguments.integer(1);
  symbol.size = arguments.integer(2);
  symbol.font = arguments.text(3);
  symbol.style = arguments.integer(4);
  symbol.angle = arguments.number(5);
  return symbol;
}

Symbol pictureSymbol(const ClauseArguments& arguments) {
  Symbol symbol;
  symbol.file = arguments.text(0);
  symbol.colour = arguments.integer(1);
  symbol.size = arguments.integer(2);
  symbol.style = arguments.integer(3);
  return symbol;
}

}  // namespace

Pen evaluatePen(const StyleClause& clause, const Scope& scope) {
  const ClauseArguments arguments(clause, scope, clause.kind == StyleClause::Kind::line ? "Line" : "Pen", 3, 3);
  return {arguments.integer(0), arguments.integer(1), arguments.integer(2)};
}

Brush evaluateBrush(const StyleClause& clause, const Scope& scope) {
  const ClauseArguments arguments(clause, scope, "Brush", 2, 3);
  return {arguments.integer(0), arguments.integer(1), arguments.has(2) ? arguments.integer(2) : kTransparent};
}

Symbol evaluateSymbol(const StyleClause& clause, const Scope& scope) {
  const ClauseArguments arguments(clause, scope, "Symbol", 3, kFontSymbolArguments);
  if (clause.arguments.size() == kFontSymbolArguments) return fontSymbol(arguments);
  if (clause.arguments.size() == kPictureArguments && arguments.isText(0)) return pictureSymbol(arguments);
  if (clause.arguments.size() != 3) {
    throw LanguageError(clause.position, "Symbol", "número de argumentos incorrecto");
  }
  Symbol symbol;
  symbol.shape = arguments.integer(0);
  symbol.colour = arguments.integer(1);
  symbol.size = arguments.integer(2);
  return symbol;
}

Font evaluateFont(const StyleClause& clause, const Scope& scope) {
  const ClauseArguments arguments(clause, scope, "Font", 4, 5);
  return {arguments.text(0), arguments.integer(1), arguments.number(2), arguments.integer(3),
          arguments.has(4) ? arguments.integer(4) : kTransparent};
}

Styles evaluate(const StyleList& list, const Scope& scope) {
  Styles styles;
  if (list.pen) styles.pen = evaluatePen(*list.pen, scope);
  if (list.line) styles.line = evaluatePen(*list.line, scope);
  if (list.brush) styles.brush = evaluateBrush(*list.brush, scope);
  if (list.symbol) styles.symbol = evaluateSymbol(*list.symbol, scope);
  if (list.font) styles.font = evaluateFont(*list.font, scope);
  return styles;
}

}  // namespace motor
