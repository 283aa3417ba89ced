#include <array>

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

template <typename Part>
void readCalling(TokenStream& stream, Part& part) {
  part.calling = parseCalling(stream);
}

constexpr std::array kMenuRules = {
    ClauseRule<MenuItem>{"id", Support::done, readExpression<&MenuItem::id>},
    ClauseRule<MenuItem>{"helpmsg", Support::passedOver, ignoreExpression<MenuItem>},
    ClauseRule<MenuItem>{"calling", Support::done, readCalling<MenuItem>},
    ClauseRule<MenuItem>{"as", Support::done,
                         [](TokenStream& stream, MenuItem& item) {
                           item.submenu = stream.expectText("el nombre de un menú entre comillas");
                         }},
};

MenuItem parseMenuItem(TokenStream& stream) {
  MenuItem item;
  item.position = stream.position();
  item.text = parseExpression(stream);
  acceptClauses<MenuItem>(stream, kMenuRules, item);
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

// n [File f]: files of pictures are not read.
template <auto kField>
void readPicture(TokenStream& stream, PadButton& button) {
  button.*kField = parseExpression(stream);
  if (stream.acceptWord("file")) static_cast<void>(parseExpression(stream));
}

template <auto kField, bool kValue>
void setSwitch(TokenStream& /*stream*/, PadButton& button) {
  button.*kField = kValue;
}

using ButtonRule = ClauseRule<PadButton>;

constexpr std::array kButtonRules = {
    ButtonRule{"calling", Support::done, readCalling<PadButton>},
    ButtonRule{"id", Support::done, readExpression<&PadButton::id>},
    ButtonRule{"drawmode", Support::done, readExpression<&PadButton::drawMode>},
    ButtonRule{"helpmsg", Support::done, readExpression<&PadButton::help>},
    ButtonRule{"icon", Support::done, readPicture<&PadButton::icon>},
    ButtonRule{"cursor", Support::done, readPicture<&PadButton::cursor>},
    ButtonRule{"enable", Support::done, setSwitch<&PadButton::enabled, true>},
    ButtonRule{"disable", Support::done, setSwitch<&PadButton::enabled, false>},
    ButtonRule{"check", Support::done, setSwitch<&PadButton::checked, true>},
    ButtonRule{"uncheck", Support::done, setSwitch<&PadButton::checked, false>},
    ButtonRule{"modifierkeys", Support::passedOver, ignoreSwitch<PadButton>},
};

std::optional<PadButton> acceptButton(TokenStream& stream) {
  for (const ButtonWord& row : kButtonWords) {
    const Position position = stream.position();
    if (!stream.acceptWord(row.word)) continue;
    PadButton button;
    button.position = position;
    button.kind = row.kind;
    acceptClauses<PadButton>(stream, kButtonRules, button);
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

template <typename Pad>
void ignorePlacement(TokenStream& stream, Pad& /*pad*/) {
  static_cast<void>(parsePlacement(stream));
}

// Where a pad stands, and whether it is seen, of both statements.
template <typename Pad>
constexpr std::array kPadRules = {
    ClauseRule<Pad>{"show", Support::done, setTo<&Pad::shown, true>},
    ClauseRule<Pad>{"hide", Support::done, setTo<&Pad::shown, false>},
    ClauseRule<Pad>{"position", Support::passedOver, ignorePlacement<Pad>},
    ClauseRule<Pad>{"toolbarposition", Support::passedOver, ignorePlacement<Pad>},
    ClauseRule<Pad>{"width", Support::passedOver, ignoreExpression<Pad>},
    ClauseRule<Pad>{"title", Support::passedOver, ignoreExpression<Pad>},
    ClauseRule<Pad>{"fixed", Support::passedOver, readNothing<Pad>},
    ClauseRule<Pad>{"float", Support::passedOver, readNothing<Pad>},
};

void readAdded(TokenStream& stream, AlterButtonPad& alter) {
  for (PadButton& button : parseButtons(stream)) alter.added.push_back(std::move(button));
}

void readRemoved(TokenStream& stream, AlterButtonPad& alter) {
  do {
    stream.acceptWord("id");
    alter.removed.push_back(parseExpression(stream));
  } while (stream.acceptSign(","));
}

constexpr std::array kAlterRules = {
    ClauseRule<AlterButtonPad>{"add", Support::done, readAdded},
    ClauseRule<AlterButtonPad>{"remove", Support::done, readRemoved},
    ClauseRule<AlterButtonPad>{"destroy", Support::done, setTo<&AlterButtonPad::destroyed, true>},
};

bool acceptPadChange(TokenStream& stream, AlterButtonPad& alter) {
  return acceptClause<AlterButtonPad>(stream, kAlterRules, alter) ||
         acceptClause<AlterButtonPad>(stream, kPadRules<AlterButtonPad>, alter);
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
  acceptClauses<CreateButtonPad>(stream, kPadRules<CreateButtonPad>, pad);
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

ClauseEntries createMenuClauses() { return entriesOf<MenuItem>("entry", kMenuRules); }

ClauseEntries createButtonPadClauses() {
  ClauseEntries entries;
  for (const ButtonWord& row : kButtonWords) entries.push_back({"button", row.word, Support::done});
  addEntries<PadButton>(entries, "button", kButtonRules);
  addEntries<CreateButtonPad>(entries, "", kPadRules<CreateButtonPad>);
  return entries;
}

ClauseEntries alterButtonPadClauses() {
  ClauseEntries entries;
  addEntries<AlterButtonPad>(entries, "", kAlterRules);
  addEntries<AlterButtonPad>(entries, "", kPadRules<AlterButtonPad>);
  return entries;
}

}  // namespace motor
