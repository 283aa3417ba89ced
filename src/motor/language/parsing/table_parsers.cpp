#include <algorithm>
#include <array>

#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/select_parser.h"
#include "motor/language/parsing/statement_parsers.h"

// Open Table, Close Table, Close All, Add Column, Fetch, Select.
namespace motor {

namespace {

constexpr const char* kTable = "el nombre de una tabla";

void ignorePassword(TokenStream& stream, OpenTable& /*open*/) {
  static_cast<void>(stream.expectText("una contraseña entre comillas"));
}

using OpenRule = ClauseRule<OpenTable>;

constexpr std::array kOpenRules = {
    OpenRule{"as", Support::done, [](TokenStream& stream, OpenTable& open) { open.as = parseName(stream, kTable); }},
    OpenRule{"interactive", Support::done, setTo<&OpenTable::interactive, true>},
    OpenRule{"readonly", Support::done, readNothing<OpenTable>},
    OpenRule{"denywrite", Support::done, readNothing<OpenTable>},
    OpenRule{"noindex", Support::done, readNothing<OpenTable>},
    OpenRule{"hide", Support::passedOver, setTo<&OpenTable::hidden, true>},
    OpenRule{"password", Support::passedOver, ignorePassword},
    OpenRule{"vmgrid", Support::passedOver, readNothing<OpenTable>},
    OpenRule{"vmraster", Support::passedOver, readNothing<OpenTable>},
    OpenRule{"vmdefault", Support::passedOver, readNothing<OpenTable>},
};

// (column [type [(width [, decimals])]])
void parseNewColumn(TokenStream& stream, AddColumn& add) {
  stream.expectSign("(");
  add.column = parseName(stream, "el nombre de una columna");
  add.type = "float";
  if (stream.peek().kind == Token::Kind::name) add.type = stream.next().folded;
  if (stream.acceptSign("(")) {
    static_cast<void>(parseExpressionList(stream));
    stream.expectSign(")");
  }
  stream.expectSign(")");
}

struct FetchWord {
  const char* word;
  Fetch::Target target;
};
constexpr FetchWord kFetchWords[] = {
    {"first", Fetch::Target::first},   {"last", Fetch::Target::last},  {"next", Fetch::Target::next},
    {"prev", Fetch::Target::previous}, {"rec", Fetch::Target::record},
};

}  // namespace

Statement parseOpenTable(TokenStream& stream, Position position) {
  OpenTable open;
  open.position = position;
  open.file = parseExpression(stream);
  acceptClauses<OpenTable>(stream, kOpenRules, open);
  return open;
}

ClauseEntries openTableClauses() { return entriesOf<OpenTable>("", kOpenRules); }

Statement parseCloseTable(TokenStream& stream, Position position) {
  CloseTable close{position, parseNames(stream, kTable)};
  stream.acceptWord("interactive");
  return close;
}

Statement parseCloseAll(TokenStream& stream, Position position) {
  stream.acceptWord("interactive");
  return CloseAll{position};
}

Statement parseAddColumn(TokenStream& stream, Position position) {
  AddColumn add;
  add.position = position;
  add.table = parseName(stream, kTable);
  parseNewColumn(stream, add);
  if (stream.acceptWord("values")) {
    add.values = parseExpressionList(stream);
    return add;
  }
  stream.expectWord("from", "From o Values");
  add.source = parseName(stream, kTable);
  stream.expectWord("set", "Set To");
  stream.expectWord("to", "Set To");
  add.setTo = parseExpression(stream);
  if (stream.acceptWord("where")) add.where = parseExpression(stream);
  stream.acceptWord("dynamic");
  return add;
}

Statement parseFetch(TokenStream& stream, Position position) {
  Fetch fetch;
  fetch.position = position;
  const auto* word = std::find_if(std::begin(kFetchWords), std::end(kFetchWords),
                                  [&stream](const FetchWord& row) { return stream.isWord(row.word); });
  if (word == std::end(kFetchWords)) stream.failExpecting("First, Last, Next, Prev o Rec");
  stream.next();
  fetch.target = word->target;
  if (fetch.target == Fetch::Target::record) fetch.record = parseExpression(stream);
  stream.expectWord("from", "From");
  fetch.table = parseName(stream, kTable);
  return fetch;
}

Statement parseSelectStatement(TokenStream& stream, Position position) { return parseSelect(stream, position); }

}  // namespace motor
