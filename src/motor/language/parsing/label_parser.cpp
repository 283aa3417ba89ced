#include "motor/language/parsing/layer_parser.h"
#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/style_parser.h"

namespace motor {

namespace {

struct SwitchWord {
  const char* word;
  std::optional<bool> LabelClause::*field;
};
constexpr SwitchWord kSwitches[] = {
    {"parallel", &LabelClause::parallel},
    {"overlap", &LabelClause::overlap},
    {"partialsegments", &LabelClause::partialSegments},
    {"duplicates", &LabelClause::duplicates},
};

bool acceptSwitch(TokenStream& stream, LabelClause& label) {
  for (const SwitchWord& row : kSwitches) {
    if (!stream.acceptWord(row.word)) continue;
    label.*row.field = parseSwitch(stream);
    return true;
  }
  return false;
}

// Font and Pen, each of which may stand in a label or an edited label.
template <typename Clause>
bool acceptStyle(TokenStream& stream, Clause& clause) {
  if (stream.isWord("font")) {
    clause.font = parseStyleClause(stream, StyleClause::Kind::font);
  } else if (stream.isWord("pen")) {
    clause.pen = parseStyleClause(stream, StyleClause::Kind::pen);
  } else {
    return false;
  }
  return true;
}

bool acceptCustomPlace(TokenStream& stream, CustomLabel& label) {
  if (stream.acceptWord("line")) {
    label.line = parseLabelLine(stream);
  } else if (stream.acceptWord("anchor")) {
    label.anchor = parseCoordinatePair(stream);
  } else if (stream.acceptWord("callout")) {
    label.callout = parseCoordinatePair(stream);
  } else if (stream.acceptWord("position")) {
    label.placement = parseAnchor(stream);
  } else {
    return false;
  }
  return true;
}

bool acceptCustomClause(TokenStream& stream, CustomLabel& label) {
  if (acceptCustomPlace(stream, label) || acceptStyle(stream, label)) return true;
  if (stream.acceptWord("table")) {
    label.table = parseName(stream, "el nombre de una tabla");
  } else if (stream.isWord("visibility") && stream.isAnyWord({"on", "off"}, 1)) {
    stream.next();
    label.visible = parseSwitch(stream);
  } else if (stream.acceptWord("text")) {
    label.text = parseExpression(stream);
  } else if (stream.acceptWord("angle")) {
    label.angle = parseExpression(stream);
  } else if (stream.acceptWord("offset")) {
    label.offset = parseExpression(stream);
  } else {
    return false;
  }
  return true;
}

CustomLabel parseCustomLabel(TokenStream& stream, Position position) {
  CustomLabel label;
  label.position = position;
  label.row = parseExpression(stream);
  while (acceptCustomClause(stream, label)) {
  }
  return label;
}

void parseVisibility(TokenStream& stream, LabelClause& label) {
  if (stream.acceptWord("zoom")) {
    label.visibility = LabelClause::Visibility::zoom;
    label.visibilityZoom = parseZoomRange(stream);
  } else if (stream.isAnyWord({"on", "off"})) {
    label.visibility = parseSwitch(stream) ? LabelClause::Visibility::on : LabelClause::Visibility::off;
  } else {
    stream.failExpecting("On, Off o Zoom");
  }
}

void parseAutomatic(TokenStream& stream, LabelClause& label) {
  if (stream.acceptWord("retry")) {
    label.retry = parseSwitch(stream);
  } else {
    label.automatic = parseSwitch(stream);
  }
}

void parseMaximum(TokenStream& stream, LabelClause& label) {
  if (stream.peek().kind == Token::Kind::number || stream.isSign("(")) {
    label.maximum = parseOperand(stream);
  } else {
    label.unlimited = true;
  }
}

bool acceptPlace(TokenStream& stream, LabelClause& label) {
  if (stream.acceptWord("line")) {
    label.line = parseLabelLine(stream);
  } else if (stream.acceptWord("position")) {
    label.placement = parseAnchor(stream);
  } else if (stream.acceptWord("offset")) {
    label.offset = parseExpression(stream);
  } else if (stream.acceptWord("max")) {
    parseMaximum(stream, label);
  } else if (stream.acceptWords("follow", "path")) {
    label.followPath = parseSwitch(stream);
  } else {
    return false;
  }
  return true;
}

bool acceptLabelClause(TokenStream& stream, LabelClause& label) {
  const Position position = stream.position();
  if (acceptPlace(stream, label) || acceptSwitch(stream, label) || acceptStyle(stream, label)) return true;
  if (stream.acceptWord("with")) {
    label.with = parseWrittenExpression(stream);
  } else if (stream.acceptWord("visibility")) {
    parseVisibility(stream, label);
  } else if (stream.acceptWord("auto")) {
    parseAutomatic(stream, label);
  } else if (stream.acceptWord("object")) {
    label.objects.push_back(parseCustomLabel(stream, position));
  } else if (stream.isWord("default") && !stream.isWord("zoom", 1)) {
    stream.next();
    label.toDefault = true;
  } else {
    return false;
  }
  return true;
}

}  // namespace

LabelClause parseLabelClause(TokenStream& stream, Position position) {
  LabelClause label;
  label.position = position;
  while (acceptLabelClause(stream, label)) {
  }
  return label;
}

LabelLine parseLabelLine(TokenStream& stream) {
  if (stream.acceptWord("none")) return LabelLine::none;
  if (stream.acceptWord("simple")) return LabelLine::simple;
  if (stream.acceptWord("arrow")) return LabelLine::arrow;
  stream.failExpecting("None, Simple o Arrow");
}

}  // namespace motor
