#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/statement_parsers.h"

// Create Menu, Create ButtonPad, Alter ButtonPad.
namespace motor {

namespace {

// Calling OLE "method" | n
Calling parseCalling(TokenStream& stream) {
  Calling calling;
  calling.position = stream.position();
  if (stream.acceptWord("ole")) {
    calling.method = stream.expectText("el nombre de un método entre comillas");
  } else {
    calling.command = parseExpression(stream);
  }
  return calling;
}

bool acceptMenuClause(TokenStream& stream, MenuItem& item) {
  if (stream.acceptWord("id")) {
    item.id = parseExpression(stream);
  } else if (stream.acceptWord("helpmsg")) {
    static_cast<void>(parseExpression(stream));
  } else if (stream.acceptWord("calling")) {
    item.calling = parseCalling(stream);
  } else if (stream.acceptWord("as")) {
    item.submenu = stream.expectText("el nombre de un menú entre comillas");
  } else {
    return false;
  }
  return true;
}

MenuItem parseMenuItem(TokenStream& stream) {
  MenuItem item;
  item.position = stream.position();
  item.text = parseExpression(stream);
  while (acceptMenuClause(stream, item)) {
  }
  return item;
}

struct ButtonWord {
  const char* word;
  PadButton::Kind kind;
};
constexpr ButtonWord kButtonWords[] = {
    {"pushbutton", PadButton::Kind::push},
    {"togglebutton", PadButton::Kind::toggle},
    {"toolbutton", PadButton::Kind::tool},
    {"separator", PadButton::Kind::separator},
};

struct NumberWord {
  const char* word;
  ExpressionPtr PadButton::*field;
};
constexpr NumberWord kNumberWords[] = {
    {"id", &PadButton::id},
    {"drawmode", &PadButton::drawMode},
    {"helpmsg", &PadButton::help},
};

// Icon n [File f] and Cursor n [File f]: files of pictures are not read.
bool acceptPicture(TokenStream& stream, PadButton& button) {
  const bool isIcon = stream.isWord("icon");
  if (!isIcon && !stream.isWord("cursor")) return false;
  stream.next();
  (isIcon ? button.icon : button.cursor) = parseExpression(stream);
  if (stream.acceptWord("file")) static_cast<void>(parseExpression(stream));
  return true;
}

bool acceptButtonSwitch(TokenStream& stream, PadButton& button) {
  if (stream.acceptWord("enable")) {
    button.enabled = true;
  } else if (stream.acceptWord("disable")) {
    button.enabled = false;
  } else if (stream.acceptWord("check")) {
    button.checked = true;
  } else if (stream.acceptWord("uncheck")) {
    button.checked = false;
  } else if (stream.acceptWord("modifierkeys")) {
    static_cast<void>(parseSwitch(stream));
  } else {
    return false;
  }
  return true;
}

bool acceptButtonClause(TokenStream& stream, PadButton& button) {
  if (stream.acceptWord("calling")) {
    button.calling = parseCalling(stream);
    return true;
  }
  for (const NumberWord& row : kNumberWords) {
    if (!stream.acceptWord(row.word)) continue;
    button.*row.field = parseExpression(stream);
    return true;
  }
  return acceptPicture(stream, button) || acceptButtonSwitch(stream, button);
}

std::optional<PadButton> acceptButton(TokenStream& stream) {
  for (const ButtonWord& row : kButtonWords) {
    const Position position = stream.position();
    if (!stream.acceptWord(row.word)) continue;
    PadButton button;
    button.position = position;
    button.kind = row.kind;
    while (acceptButtonClause(stream, button)) {
    }
    return button;
  }
  return std::nullopt;
}

std::vector<PadButton> parseButtons(TokenStream& stream) {
  std::vector<PadButton> buttons;
  while (auto button = acceptButton(stream)) buttons.push_back(std::move(*button));
  if (buttons.empty()) stream.failExpecting("PushButton, ToggleButton, ToolButton o Separator");
  return buttons;
}

// Where a pad stands: read and not kept.
bool acceptPadPlace(TokenStream& stream) {
  if (stream.acceptWord("position") || stream.acceptWord("toolbarposition")) {
    static_cast<void>(parsePlacement(stream));
  } else if (stream.acceptWord("width") || stream.acceptWord("title")) {
    static_cast<void>(parseExpression(stream));
  } else {
    return stream.acceptWord("fixed") || stream.acceptWord("float");
  }
  return true;
}

// Show and Hide, of both statements.
bool acceptShown(TokenStream& stream, std::optional<bool>& shown) {
  if (stream.acceptWord("show")) {
    shown = true;
  } else if (stream.acceptWord("hide")) {
    shown = false;
  } else {
    return false;
  }
  return true;
}

bool acceptPadChange(TokenStream& stream, AlterButtonPad& alter) {
  if (acceptPadPlace(stream) || acceptShown(stream, alter.shown)) return true;
  if (stream.acceptWord("add")) {
    for (PadButton& button : parseButtons(stream)) alter.added.push_back(std::move(button));
  } else if (stream.acceptWord("remove")) {
    do {
      stream.acceptWord("id");
      alter.removed.push_back(parseExpression(stream));
    } while (stream.acceptSign(","));
  } else if (stream.acceptWord("destroy")) {
    alter.destroyed = true;
  } else {
    return false;
  }
  return true;
}

}  // namespace

Statement parseCreateMenu(TokenStream& stream, Position position) {
  CreateMenu menu;
  menu.position = position;
  menu.name = parseExpression(stream);
  if (stream.acceptWord("id")) menu.id = parseExpression(stream);
  stream.expectWord("as", "As");
  do {
    menu.items.push_back(parseMenuItem(stream));
  } while (stream.acceptSign(","));
  return menu;
}

Statement parseCreateButtonPad(TokenStream& stream, Position position) {
  CreateButtonPad pad;
  pad.position = position;
  pad.title = parseExpression(stream);
  if (stream.acceptWord("id")) static_cast<void>(parseExpression(stream));
  stream.expectWord("as", "As");
  pad.buttons = parseButtons(stream);
  while (acceptPadPlace(stream) || acceptShown(stream, pad.shown)) {
  }
  return pad;
}

Statement parseAlterButtonPad(TokenStream& stream, Position position) {
  AlterButtonPad alter;
  alter.position = position;
  if (stream.acceptWord("id")) {
    alter.id = parseExpression(stream);
  } else {
    alter.title = parseExpression(stream);
  }
  if (!acceptPadChange(stream, alter)) stream.failExpecting("Add, Remove, Show, Hide, Fixed, Float o Destroy");
  while (acceptPadChange(stream, alter)) {
  }
  return alter;
}

}  // namespace motor
