#include <array>

#include "motor/language/parsing/layer_parser.h"
#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/style_parser.h"

namespace motor {

namespace {

// None, Simple or Arrow
LabelLine parseLabelLine(TokenStream& stream) {
  if (stream.acceptWord("none")) return LabelLine::none;
  if (stream.acceptWord("simple")) return LabelLine::simple;
  if (stream.acceptWord("arrow")) return LabelLine::arrow;
  stream.failExpecting("None, Simple o Arrow");
}

bool isStyleNext(const TokenStream& stream) { return stream.isSign("(", 1); }
bool isSwitchNext(const TokenStream& stream) { return stream.isAnyWord({"on", "off"}, 1); }
bool isNoZoomNext(const TokenStream& stream) { return !stream.isWord("zoom", 1); }

// What labels of layers and of single objects share.
template <typename Clause>
void readLine(TokenStream& stream, Clause& clause) {
  clause.line = parseLabelLine(stream);
}
template <typename Clause>
void readPlacement(TokenStream& stream, Clause& clause) {
  clause.placement = parseAnchor(stream);
}
template <auto kField, typename Clause>
void readStyle(TokenStream& stream, Clause& clause) {
  clause.*kField = parseStyleArguments(stream);
}

using ObjectRule = ClauseRule<CustomLabel>;

constexpr std::array kObjectRules = {
    ObjectRule{"line", Support::done, readLine<CustomLabel>},
    ObjectRule{"anchor", Support::done,
               [](TokenStream& stream, CustomLabel& label) { label.anchor = parseCoordinatePair(stream); }},
    ObjectRule{"callout", Support::done,
               [](TokenStream& stream, CustomLabel& label) { label.callout = parseCoordinatePair(stream); }},
    ObjectRule{"position", Support::done, readPlacement<CustomLabel>},
    ObjectRule{"font", Support::done, readStyle<&CustomLabel::font>, isStyleNext},
    ObjectRule{"pen", Support::done, readStyle<&CustomLabel::pen>, isStyleNext},
    ObjectRule{
        "table", Support::passedOver,
        [](TokenStream& stream, CustomLabel& label) { label.table = parseName(stream, "el nombre de una tabla"); }},
    ObjectRule{"visibility", Support::done, readSwitch<&CustomLabel::visible>, isSwitchNext},
    ObjectRule{"text", Support::done, readExpression<&CustomLabel::text>},
    ObjectRule{"angle", Support::done, readExpression<&CustomLabel::angle>},
    ObjectRule{"offset", Support::done, readExpression<&CustomLabel::offset>},
};

void readObject(TokenStream& stream, LabelClause& label) {
  CustomLabel object;
  object.position = stream.before().position;
  object.row = parseExpression(stream);
  acceptClauses<CustomLabel>(stream, kObjectRules, object);
  label.objects.push_back(std::move(object));
}

template <LabelClause::Visibility kVisibility>
void readVisibility(TokenStream& stream, LabelClause& label) {
  label.visibility = kVisibility;
  if (kVisibility == LabelClause::Visibility::zoom) label.visibilityZoom = parseZoomRange(stream);
}

[[noreturn]] void failVisibility(TokenStream& stream, LabelClause& /*label*/) {
  stream.failExpecting("On, Off o Zoom");
}

// Max [n]: without a number there is no limit.
void readMaximum(TokenStream& stream, LabelClause& label) {
  label.saysMaximum = true;
  const bool isLimited = stream.peek().kind == Token::Kind::number || stream.isSign("(");
  label.maximum = isLimited ? parseOperand(stream) : nullptr;
}

using Rule = ClauseRule<LabelClause>;
using Visibility = LabelClause::Visibility;

constexpr std::array kRules = {
    Rule{"default", Support::done, setTo<&LabelClause::toDefault, true>, isNoZoomNext},
    Rule{"line", Support::done, readLine<LabelClause>},
    Rule{"position", Support::done, readPlacement<LabelClause>},
    Rule{"offset", Support::done, readExpression<&LabelClause::offset>},
    Rule{"font", Support::done, readStyle<&LabelClause::font>, isStyleNext},
    Rule{"pen", Support::done, readStyle<&LabelClause::pen>, isStyleNext},
    Rule{"with", Support::done,
         [](TokenStream& stream, LabelClause& label) { label.with = parseWrittenExpression(stream); }},
    Rule{"visibility on", Support::done, readVisibility<Visibility::on>},
    Rule{"visibility off", Support::done, readVisibility<Visibility::off>},
    Rule{"visibility zoom", Support::done, readVisibility<Visibility::zoom>},
    Rule{"visibility", Support::incomplete, failVisibility},
    Rule{"auto retry", Support::passedOver, ignoreSwitch<LabelClause>},
    Rule{"auto", Support::done, readSwitch<&LabelClause::automatic>},
    Rule{"overlap", Support::done, readSwitch<&LabelClause::overlap>},
    Rule{"duplicates", Support::done, readSwitch<&LabelClause::duplicates>},
    Rule{"parallel", Support::done, readSwitch<&LabelClause::parallel>},
    Rule{"follow path", Support::passedOver, ignoreSwitch<LabelClause>},
    Rule{"partialsegments", Support::passedOver, ignoreSwitch<LabelClause>},
    Rule{"max", Support::done, readMaximum},
    Rule{"object", Support::done, readObject},
};

}  // namespace

LabelClause parseLabelClause(TokenStream& stream, Position position) {
  LabelClause label;
  label.position = position;
  acceptClauses<LabelClause>(stream, kRules, label);
  return label;
}

void addLabelEntries(ClauseEntries& entries, const std::string& within) {
  addEntries<LabelClause>(entries, within, kRules);
  addEntries<CustomLabel>(entries, within + " object", kObjectRules);
}

}  // namespace motor
