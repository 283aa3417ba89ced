#include <array>

#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/statement_parsers.h"
#include "motor/language/parsing/style_parser.h"
#include "motor/language/parsing/window_shape_parser.h"

// Set Window, Open Window, Close Window, Set Application Window, Set Next Document.
namespace motor {

namespace {

// Margins Left a Right b Top c Bottom d Units u
void readMargins(TokenStream& stream) {
  while (stream.isAnyWord({"left", "right", "top", "bottom"})) {
    stream.next();
    static_cast<void>(parseExpression(stream));
  }
  static_cast<void>(parseUnits(stream));
}

// What a printer is told: read and not kept.
struct Printer {};

void ignoreMargins(TokenStream& stream, Printer& /*printer*/) { readMargins(stream); }

constexpr std::array kPrinterRules = {
    ClauseRule<Printer>{"default", Support::passedOver, readNothing<Printer>},
    ClauseRule<Printer>{"name", Support::passedOver, ignoreExpression<Printer>},
    ClauseRule<Printer>{"orientation portrait", Support::passedOver, readNothing<Printer>},
    ClauseRule<Printer>{"orientation landscape", Support::passedOver, readNothing<Printer>},
    ClauseRule<Printer>{"copies", Support::passedOver, ignoreExpression<Printer>},
    ClauseRule<Printer>{"papersize", Support::passedOver, ignoreExpression<Printer>},
    ClauseRule<Printer>{"file", Support::passedOver, ignoreExpression<Printer>},
    ClauseRule<Printer>{"margins", Support::passedOver, ignoreMargins},
    ClauseRule<Printer>{"border", Support::passedOver, ignoreSwitch<Printer>},
    ClauseRule<Printer>{"truecolor", Support::passedOver, ignoreSwitch<Printer>},
    ClauseRule<Printer>{"colorreduction", Support::passedOver, ignoreSwitch<Printer>},
    ClauseRule<Printer>{"antialiasing", Support::passedOver, ignoreSwitch<Printer>},
};

void ignorePrinter(TokenStream& stream, SetWindow& /*set*/) {
  Printer printer;
  while (acceptClause<Printer>(stream, kPrinterRules, printer)) {
  }
}

bool isStyleNext(const TokenStream& stream) { return stream.isSign("(", 1); }

void readTitle(TokenStream& stream, SetWindow& set) {
  set.title = stream.acceptWord("default") ? nullptr : parseExpression(stream);
}

using Rule = ClauseRule<SetWindow>;

constexpr std::array kRules = {
    Rule{"title", Support::done, readTitle},
    Rule{"parent", Support::done, readExpression<&SetWindow::parent>},
    Rule{"front", Support::done, setTo<&SetWindow::front, true>},
    Rule{"scrollbars", Support::done, readSwitch<&SetWindow::scrollBars>},
    Rule{"autoscroll", Support::done, readSwitch<&SetWindow::autoscroll>},
    Rule{"sysmenuclose", Support::done, readSwitch<&SetWindow::closeBox>},
    Rule{"show", Support::passedOver, setTo<&SetWindow::shown, true>},
    Rule{"hide", Support::passedOver, setTo<&SetWindow::shown, false>},
    Rule{"printer", Support::passedOver, ignorePrinter},
    Rule{"font", Support::passedOver,
         [](TokenStream& stream, SetWindow& /*set*/) { static_cast<void>(parseStyleArguments(stream)); }, isStyleNext},
    Rule{"snap mode", Support::passedOver, ignoreSwitch<SetWindow>},
    Rule{"smart pan", Support::passedOver, ignoreSwitch<SetWindow>},
};

bool acceptWindowClause(TokenStream& stream, SetWindow& set) {
  return acceptClause(stream, windowShapeRules(), set.shape) || acceptClause<SetWindow>(stream, kRules, set);
}

}  // namespace

Statement parseSetWindow(TokenStream& stream, Position position) {
  SetWindow set;
  set.position = position;
  set.window = parseWindowReference(stream);
  if (!acceptWindowClause(stream, set)) stream.failExpecting("una cláusula de Set Window");
  while (acceptWindowClause(stream, set)) {
  }
  return set;
}

ClauseEntries setWindowClauses() {
  ClauseEntries entries;
  addEntries(entries, "", windowShapeRules());
  addEntries<SetWindow>(entries, "", kRules);
  addEntries<Printer>(entries, "printer", kPrinterRules);
  return entries;
}

Statement parseOpenWindow(TokenStream& stream, Position position) {
  return OpenWindow{position, parseWindowReference(stream)};
}

Statement parseCloseWindow(TokenStream& stream, Position position) {
  CloseWindow close{position, parseWindowReference(stream)};
  stream.acceptWord("interactive");
  return close;
}

Statement parseSetApplicationWindow(TokenStream& stream, Position position) {
  return SetApplicationWindow{position, parseExpression(stream)};
}

Statement parseSetNextDocument(TokenStream& stream, Position position) {
  SetNextDocument next;
  next.position = position;
  if (stream.acceptWord("parent")) next.parent = parseExpression(stream);
  if (stream.acceptWord("style")) next.style = parseExpression(stream);
  if (!next.parent && !next.style) stream.failExpecting("Parent o Style");
  return next;
}

}  // namespace motor
