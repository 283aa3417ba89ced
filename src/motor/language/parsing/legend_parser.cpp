#include <array>

#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/statement_parsers.h"
#include "motor/language/parsing/style_parser.h"

// Set Legend, Create Legend.
namespace motor {

namespace {

// Auto | text [Font (...)]
LegendText parseText(TokenStream& stream) {
  LegendText text;
  text.automatic = stream.acceptWord("auto");
  if (!text.automatic) text.text = parseExpression(stream);
  if (stream.isWord("font")) text.font = parseStyleClause(stream, StyleClause::Kind::font);
  return text;
}

LegendRow parseRow(TokenStream& stream) {
  LegendRow row;
  row.position = stream.position();
  row.text = parseText(stream);
  if (stream.acceptWord("display")) row.shown = parseSwitch(stream);
  return row;
}

// [Font (...)] row, ...
void parseRows(TokenStream& stream, LegendLayer& layer) {
  if (stream.isWord("font")) layer.rowFont = parseStyleClause(stream, StyleClause::Kind::font);
  do {
    layer.rows.push_back(parseRow(stream));
  } while (stream.acceptSign(","));
}

// Small | Large
void ignoreSize(TokenStream& stream, LegendLayer& /*layer*/) {
  if (!stream.acceptWord("small") && !stream.acceptWord("large")) stream.failExpecting("Small o Large");
}

using Rule = ClauseRule<LegendLayer>;

constexpr std::array kRules = {
    Rule{"display", Support::done, readSwitch<&LegendLayer::shown>},
    Rule{"shades", Support::done, readSwitch<&LegendLayer::shades>},
    Rule{"symbols", Support::done, readSwitch<&LegendLayer::symbols>},
    Rule{"lines", Support::done, readSwitch<&LegendLayer::lines>},
    Rule{"count", Support::done, readSwitch<&LegendLayer::count>},
    Rule{"ascending", Support::done, readSwitch<&LegendLayer::ascending>},
    Rule{"title", Support::done, [](TokenStream& stream, LegendLayer& layer) { layer.title = parseText(stream); }},
    Rule{"subtitle", Support::done,
         [](TokenStream& stream, LegendLayer& layer) { layer.subtitle = parseText(stream); }},
    Rule{"ranges", Support::done, parseRows},
    Rule{"style size", Support::passedOver, ignoreSize},
    Rule{"columns", Support::passedOver, ignoreExpression<LegendLayer>},
};

LegendLayer parseLegendLayer(TokenStream& stream, Position position) {
  LegendLayer layer;
  layer.position = position;
  if (!stream.acceptWord("prev")) layer.layer = parseLayerReference(stream);
  acceptClauses<LegendLayer>(stream, kRules, layer);
  return layer;
}

}  // namespace

Statement parseSetLegend(TokenStream& stream, Position position) {
  SetLegend legend;
  legend.position = position;
  legend.window = parseWindowClause(stream);
  do {
    const Position at = stream.position();
    stream.expectWord("layer", "Layer");
    legend.layers.push_back(parseLegendLayer(stream, at));
  } while (stream.acceptSign(",") || stream.isWord("layer"));
  return legend;
}

ClauseEntries setLegendClauses() { return entriesOf<LegendLayer>("layer", kRules); }

Statement parseCreateLegend(TokenStream& stream, Position position) {
  CreateLegend legend;
  legend.position = position;
  if (stream.acceptWord("from")) {
    stream.expectWord("window", "Window");
    legend.window = parseExpression(stream);
  }
  if (stream.acceptWord("hide")) {
    legend.shown = false;
  } else {
    stream.acceptWord("show");
  }
  return legend;
}

}  // namespace motor
