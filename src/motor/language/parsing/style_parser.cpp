#include "motor/language/parsing/style_parser.h"

#include <algorithm>
#include <array>

#include "motor/language/parsing/expression_parser.h"

namespace motor {

namespace {

struct StyleWord {
  const char* word;
  const char* name;
  StyleClause::Kind kind;
};
constexpr std::array kStyleWords = {
    StyleWord{"pen", "Pen (...)", StyleClause::Kind::pen},
    StyleWord{"line", "Line (...)", StyleClause::Kind::line},
    StyleWord{"brush", "Brush (...)", StyleClause::Kind::brush},
    StyleWord{"symbol", "Symbol (...)", StyleClause::Kind::symbol},
    StyleWord{"font", "Font (...)", StyleClause::Kind::font},
};

// ( argument, ... ) of the clause whose word was read last.
StyleClause parseArguments(TokenStream& stream, StyleClause::Kind kind) {
  StyleClause clause{stream.before().position, kind, {}};
  stream.expectSign("(");
  clause.arguments = parseExpressionList(stream);
  stream.expectSign(")");
  return clause;
}

}  // namespace

std::optional<StyleClause> acceptStyleClause(TokenStream& stream) {
  const auto* word = std::find_if(kStyleWords.begin(), kStyleWords.end(), [&stream](const StyleWord& row) {
    return stream.isWord(row.word) && stream.isSign("(", 1);
  });
  if (word == kStyleWords.end()) return std::nullopt;
  stream.next();
  return parseArguments(stream, word->kind);
}

StyleClause parseStyleArguments(TokenStream& stream) {
  const auto* word = std::find_if(kStyleWords.begin(), kStyleWords.end(),
                                  [&stream](const StyleWord& row) { return stream.before().isWord(row.word); });
  return parseArguments(stream, word->kind);
}

StyleClause parseStyleClause(TokenStream& stream, StyleClause::Kind kind) {
  const auto* word =
      std::find_if(kStyleWords.begin(), kStyleWords.end(), [kind](const StyleWord& row) { return row.kind == kind; });
  if (!stream.isWord(word->word)) stream.failExpecting(word->name);
  auto clause = acceptStyleClause(stream);
  if (!clause) {
    stream.next();
    stream.failExpecting("«(»");
  }
  return *clause;
}

StyleList parseStyleList(TokenStream& stream) {
  StyleList list;
  while (auto clause = acceptStyleClause(stream)) addStyle(list, std::move(*clause));
  return list;
}

void addStyle(StyleList& list, StyleClause clause) {
  switch (clause.kind) {
    case StyleClause::Kind::pen:
      list.pen = std::move(clause);
      break;
    case StyleClause::Kind::line:
      list.line = std::move(clause);
      break;
    case StyleClause::Kind::brush:
      list.brush = std::move(clause);
      break;
    case StyleClause::Kind::symbol:
      list.symbol = std::move(clause);
      break;
    case StyleClause::Kind::font:
      list.font = std::move(clause);
      break;
  }
}

}  // namespace motor
