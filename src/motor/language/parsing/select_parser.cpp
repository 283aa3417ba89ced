#include "motor/language/parsing/select_parser.h"

#include "motor/language/expressions/literal.h"
#include "motor/language/expressions/name_reference.h"
#include "motor/language/parsing/part_parsers.h"

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

bool acceptClause(TokenStream& stream, SelectStatement& select) {
  if (stream.acceptWord("where")) {
    select.where = parseExpression(stream);
  } else if (stream.acceptWord("group")) {
    select.groupBy = parseKeys(stream);
  } else if (stream.acceptWord("order")) {
    select.orderBy = parseKeys(stream);
  } else if (stream.acceptWord("into")) {
    select.into = parseName(stream, kTable);
  } else if (stream.acceptWord("noselect")) {
    select.noSelect = true;
  } else {
    return stream.acceptWord("hide");
  }
  return true;
}

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
  while (acceptClause(stream, select)) {
  }
  return select;
}

}  // namespace motor
