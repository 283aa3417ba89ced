#include "motor/language/parsing/select_parser.h"

#include <array>

#include "motor/language/expressions/literal.h"
#include "motor/language/expressions/name_reference.h"
#include "motor/language/parsing/statement_parsers.h"

namespace motor {

namespace {

constexpr const char* kTable = "el nombre de una tabla";

SelectColumn parseColumn(TokenStream& stream) {
  SelectColumn column;
  column.position = stream.position();
  column.value = parseWrittenExpression(stream);
  if (stream.peek().kind == Token::Kind::text) column.alias = stream.next().text;
  return column;
}

SelectKey parseKey(TokenStream& stream) {
  SelectKey key;
  key.position = stream.position();
  if (stream.peek().kind != Token::Kind::name && stream.peek().kind != Token::Kind::number) {
    stream.failExpecting("el nombre o el número de una columna");
  }
  key.column = parseOperand(stream);
  const bool isColumn = dynamic_cast<const NameReference*>(key.column.get()) != nullptr ||
                        dynamic_cast<const Literal*>(key.column.get()) != nullptr;
  if (!isColumn) stream.fail("sólo se puede ordenar o agrupar por columnas");
  key.descending = stream.acceptWord("desc");
  if (!key.descending) stream.acceptWord("asc");
  return key;
}

std::vector<SelectKey> parseKeys(TokenStream& stream) {
  stream.expectWord("by", "By");
  std::vector<SelectKey> keys;
  do {
    keys.push_back(parseKey(stream));
  } while (stream.acceptSign(","));
  return keys;
}

template <auto kField>
void readKeys(TokenStream& stream, SelectStatement& select) {
  select.*kField = parseKeys(stream);
}

using Rule = ClauseRule<SelectStatement>;

constexpr std::array kRules = {
    Rule{"where", Support::done, readExpression<&SelectStatement::where>},
    Rule{"group", Support::done, readKeys<&SelectStatement::groupBy>},
    Rule{"order", Support::done, readKeys<&SelectStatement::orderBy>},
    Rule{"into", Support::done,
         [](TokenStream& stream, SelectStatement& select) { select.into = parseName(stream, kTable); }},
    Rule{"noselect", Support::done, setTo<&SelectStatement::noSelect, true>},
    Rule{"hide", Support::passedOver, readNothing<SelectStatement>},
};

}  // namespace

SelectStatement parseSelect(TokenStream& stream, Position position) {
  SelectStatement select;
  select.position = position;
  if (stream.acceptSign("*")) {
    select.all = true;
  } else {
    do {
      select.columns.push_back(parseColumn(stream));
    } while (stream.acceptSign(","));
  }
  stream.expectWord("from", "From");
  select.tables = parseNames(stream, kTable);
  acceptClauses<SelectStatement>(stream, kRules, select);
  return select;
}

ClauseEntries selectClauses() { return entriesOf<SelectStatement>("", kRules); }

}  // namespace motor
