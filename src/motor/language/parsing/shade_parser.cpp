#include <array>

#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/statement_parsers.h"
#include "motor/language/parsing/style_parser.h"
#include "text/utf8.h"

// Shade, Set Shade.
namespace motor {

namespace {

ThemeAttribute parseAttribute(TokenStream& stream) {
  if (stream.acceptWord("all")) return ThemeAttribute::all;
  if (stream.acceptWord("color")) return ThemeAttribute::colour;
  if (stream.acceptWord("size")) return ThemeAttribute::size;
  stream.failExpecting("Color, Size o All");
}

// [Apply a] [Use a style], before ranges and values.
template <typename Kind>
void parseApplication(TokenStream& stream, Kind& kind) {
  if (stream.acceptWord("apply")) kind.apply = parseAttribute(stream);
  if (!stream.acceptWord("use")) return;
  kind.use = parseAttribute(stream);
  kind.useStyle = parseStyleList(stream);
}

// [Default style] [# ... #], after them.
template <typename Kind>
void parseOtherwise(TokenStream& stream, Kind& kind) {
  if (stream.acceptWord("default")) kind.otherwise = parseStyleList(stream);
}

ShadeKind parseRanges(TokenStream& stream) {
  ShadeRanges ranges;
  parseApplication(stream, ranges);
  do {
    ShadeRange range;
    range.position = stream.position();
    range.minimum = parseExpression(stream);
    stream.expectSign(":");
    range.maximum = parseExpression(stream);
    range.style = parseStyleList(stream);
    ranges.ranges.push_back(std::move(range));
  } while (stream.acceptSign(","));
  parseOtherwise(stream, ranges);
  return ranges;
}

ShadeKind parseValues(TokenStream& stream) {
  ShadeValues values;
  parseApplication(stream, values);
  do {
    ShadeValue value;
    value.position = stream.position();
    value.value = parseExpression(stream);
    value.style = parseStyleList(stream);
    values.values.push_back(std::move(value));
  } while (stream.acceptSign(","));
  parseOtherwise(stream, values);
  return values;
}

std::string parseBy(TokenStream& stream) {
  const bool isText = stream.peek().kind == Token::Kind::text;
  std::string scale = text::lower(stream.peek().text);
  if (!isText || (scale != "sqrt" && scale != "log" && scale != "const")) {
    stream.failExpecting("\"SQRT\", \"LOG\" o \"CONST\"");
  }
  stream.next();
  return scale;
}

// Max Size s [Units u] [At Value v [By "..."]]
void parseMaximumSize(TokenStream& stream, ShadeChart& chart) {
  stream.expectWord("size", "Size");
  chart.maximumSize = parseMeasure(stream);
  if (!stream.acceptWord("at")) return;
  stream.expectWord("value", "Value");
  chart.atValue = parseExpression(stream);
  if (stream.acceptWord("by")) chart.by = parseBy(stream);
}

void parseChartParts(TokenStream& stream, ShadeChart& chart) {
  do {
    chart.parts.push_back(parseStyleList(stream));
    if (chart.parts.back().isEmpty()) stream.failExpecting("Brush (...)");
  } while (stream.acceptSign(","));
}

template <auto kField, auto kStyle>
void readChartStyle(TokenStream& stream, ShadeChart& chart) {
  chart.*kField = parseStyleClause(stream, kStyle);
}

using ChartRule = ClauseRule<ShadeChart>;

constexpr std::array kChartRules = {
    ChartRule{"counter", Support::done, setTo<&ShadeChart::counterClockwise, true>},
    ChartRule{"fixed", Support::done, setTo<&ShadeChart::fixed, true>},
    ChartRule{"stacked", Support::done, setTo<&ShadeChart::stacked, true>},
    ChartRule{"normalized", Support::done, setTo<&ShadeChart::normalized, true>},
    ChartRule{"angle", Support::done, readExpression<&ShadeChart::angle>},
    ChartRule{"max", Support::done, parseMaximumSize},
    ChartRule{"border", Support::done, readChartStyle<&ShadeChart::border, StyleClause::Kind::pen>},
    ChartRule{"frame", Support::done, readChartStyle<&ShadeChart::frame, StyleClause::Kind::brush>},
    ChartRule{"width", Support::done,
              [](TokenStream& stream, ShadeChart& chart) { chart.width = parseMeasure(stream); }},
    ChartRule{"position", Support::done,
              [](TokenStream& stream, ShadeChart& chart) { chart.placement = parseAnchor(stream); }},
    ChartRule{"style", Support::done, parseChartParts},
};

template <bool kIsPie, bool kHalf>
void readChart(TokenStream& stream, ShadeKind& kind) {
  ShadeChart chart;
  chart.isPie = kIsPie;
  chart.half = kHalf;
  acceptClauses<ShadeChart>(stream, kChartRules, chart);
  kind = std::move(chart);
}

// min: size max: size Symbol ... [Inflect Symbol ...] [Vary Size By "..."]
ShadeKind parseGraduated(TokenStream& stream) {
  ShadeGraduated graduated;
  graduated.minimum = parseExpression(stream);
  stream.expectSign(":");
  graduated.minimumSize = parseExpression(stream);
  stream.acceptSign(",");
  graduated.maximum = parseExpression(stream);
  stream.expectSign(":");
  graduated.maximumSize = parseExpression(stream);
  if (stream.isWord("symbol")) graduated.symbol = parseStyleClause(stream, StyleClause::Kind::symbol);
  if (stream.acceptWord("inflect")) {
    if (!stream.acceptWord("off")) graduated.inflect = parseStyleClause(stream, StyleClause::Kind::symbol);
  }
  if (stream.acceptWord("vary")) {
    stream.expectWord("size", "Size");
    stream.expectWord("by", "By");
    graduated.by = parseBy(stream);
  }
  return graduated;
}

ShadeKind parseDensity(TokenStream& stream) {
  ShadeDensity density;
  density.value = parseExpression(stream);
  density.square = stream.acceptWord("square");
  if (!density.square) stream.acceptWord("circle");
  if (stream.acceptWord("width")) density.width = parseExpression(stream);
  if (stream.acceptWord("color")) density.colour = parseExpression(stream);
  return density;
}

template <ShadeKind (*kParse)(TokenStream&)>
void readKind(TokenStream& stream, ShadeKind& kind) {
  kind = kParse(stream);
}

using KindRule = ClauseRule<ShadeKind>;

constexpr std::array kKindRules = {
    KindRule{"ranges", Support::done, readKind<parseRanges>},
    KindRule{"values", Support::done, readKind<parseValues>},
    KindRule{"graduated", Support::done, readKind<parseGraduated>},
    KindRule{"density", Support::done, readKind<parseDensity>},
    KindRule{"bar", Support::done, readChart<false, false>},
    KindRule{"pie", Support::done, readChart<true, false>},
    KindRule{"half pie", Support::done, readChart<true, true>},
};

// With expression, ... [Ignore value, ...] kind
void parseTheme(TokenStream& stream, Shade& shade) {
  stream.expectWord("with", "With");
  do {
    shade.with.push_back(parseWrittenExpression(stream));
  } while (stream.acceptSign(","));
  if (stream.acceptWord("ignore")) shade.ignored = parseExpressionList(stream);
  if (!acceptClause<ShadeKind>(stream, kKindRules, shade.kind)) {
    stream.failExpecting("Ranges, Values, Pie, Bar, Graduated o Density");
  }
  skipEditorTrailer(stream);
}

}  // namespace

Statement parseShade(TokenStream& stream, Position position) {
  Shade shade;
  shade.position = position;
  shade.window = parseWindowClause(stream);
  shade.layer = parseLayerReference(stream);
  parseTheme(stream, shade);
  return shade;
}

Statement parseSetShade(TokenStream& stream, Position position) {
  SetShade set;
  set.position = position;
  set.shade.position = position;
  set.shade.window = parseWindowClause(stream);
  set.previous = stream.acceptWord("prev");
  if (!set.previous) set.shade.layer = parseLayerReference(stream);
  parseTheme(stream, set.shade);
  return set;
}

ClauseEntries shadeClauses() {
  ClauseEntries entries;
  addEntries<ShadeKind>(entries, "", kKindRules);
  addEntries<ShadeChart>(entries, "pie/bar", kChartRules);
  return entries;
}

}  // namespace motor
