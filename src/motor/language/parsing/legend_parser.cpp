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

struct SwitchWord {
  const char* word;
  std::optional<bool> LegendLayer::*field;
};
constexpr SwitchWord kSwitches[] = {
    {"display", &LegendLayer::shown}, {"shades", &LegendLayer::shades}, {"symbols", &LegendLayer::symbols},
    {"lines", &LegendLayer::lines},   {"count", &LegendLayer::count},   {"ascending", &LegendLayer::ascending},
};

bool acceptSwitch(TokenStream& stream, LegendLayer& layer) {
  for (const SwitchWord& row : kSwitches) {
    if (!stream.acceptWord(row.word)) continue;
    layer.*row.field = parseSwitch(stream);
    return true;
  }
  return false;
}

// Style Size Small | Large and Columns n: read and not kept.
bool acceptLayout(TokenStream& stream) {
  if (stream.acceptWords("style", "size")) {
    if (!stream.acceptWord("small") && !stream.acceptWord("large")) stream.failExpecting("Small o Large");
    return true;
  }
  if (!stream.acceptWord("columns")) return false;
  static_cast<void>(parseExpression(stream));
  return true;
}

bool acceptLegendClause(TokenStream& stream, LegendLayer& layer) {
  if (acceptSwitch(stream, layer) || acceptLayout(stream)) return true;
  if (stream.acceptWord("title")) {
    layer.title = parseText(stream);
  } else if (stream.acceptWord("subtitle")) {
    layer.subtitle = parseText(stream);
  } else if (stream.acceptWord("ranges")) {
    parseRows(stream, layer);
  } else {
    return false;
  }
  return true;
}

LegendLayer parseLegendLayer(TokenStream& stream, Position position) {
  LegendLayer layer;
  layer.position = position;
  if (!stream.acceptWord("prev")) layer.layer = parseLayerReference(stream);
  while (acceptLegendClause(stream, layer)) {
  }
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
