#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/statement_parsers.h"
#include "motor/language/parsing/style_parser.h"

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

// Printer Name n Orientation o Copies c Papersize p ...: each word with one value; read and not kept.
bool acceptPrinterClause(TokenStream& stream) {
  if (stream.acceptWord("orientation")) {
    if (!stream.acceptWord("portrait") && !stream.acceptWord("landscape")) {
      stream.failExpecting("Portrait o Landscape");
    }
    return true;
  }
  if (stream.acceptWord("margins")) {
    readMargins(stream);
    return true;
  }
  if (stream.isAnyWord({"name", "copies", "papersize", "file"})) {
    stream.next();
    static_cast<void>(parseExpression(stream));
    return true;
  }
  if (!stream.isAnyWord({"border", "truecolor", "colorreduction", "antialiasing"})) return false;
  stream.next();
  static_cast<void>(parseSwitch(stream));
  return true;
}

void readPrinter(TokenStream& stream) {
  stream.acceptWord("default");
  while (acceptPrinterClause(stream)) {
  }
}

bool acceptForeignClause(TokenStream& stream) {
  if (stream.acceptWord("printer")) {
    readPrinter(stream);
  } else if (stream.isWord("font")) {
    static_cast<void>(parseStyleClause(stream, StyleClause::Kind::font));
  } else if (stream.acceptWords("snap", "mode") || stream.acceptWords("smart", "pan")) {
    static_cast<void>(parseSwitch(stream));
  } else {
    return false;
  }
  return true;
}

bool acceptLook(TokenStream& stream, SetWindow& set) {
  if (stream.acceptWord("show")) {
    set.shown = true;
  } else if (stream.acceptWord("hide")) {
    set.shown = false;
  } else if (stream.acceptWord("front")) {
    set.front = true;
  } else if (stream.acceptWord("scrollbars")) {
    set.scrollBars = parseSwitch(stream);
  } else if (stream.acceptWord("autoscroll")) {
    set.autoscroll = parseSwitch(stream);
  } else if (stream.acceptWord("sysmenuclose")) {
    set.closeBox = parseSwitch(stream);
  } else {
    return false;
  }
  return true;
}

bool acceptWindowClause(TokenStream& stream, SetWindow& set) {
  if (acceptWindowShape(stream, set.shape) || acceptLook(stream, set) || acceptForeignClause(stream)) return true;
  if (stream.acceptWord("title")) {
    set.title = stream.acceptWord("default") ? nullptr : parseExpression(stream);
  } else if (stream.acceptWord("parent")) {
    set.parent = parseExpression(stream);
  } else {
    return false;
  }
  return true;
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
