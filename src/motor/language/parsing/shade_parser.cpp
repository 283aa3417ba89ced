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

bool acceptChartSwitch(TokenStream& stream, ShadeChart& chart) {
  if (stream.acceptWord("counter")) {
    chart.counterClockwise = true;
  } else if (stream.acceptWord("fixed")) {
    chart.fixed = true;
  } else if (stream.acceptWord("stacked")) {
    chart.stacked = true;
  } else if (stream.acceptWord("normalized")) {
    chart.normalized = true;
  } else {
    return false;
  }
  return true;
}

void parseChartParts(TokenStream& stream, ShadeChart& chart) {
  do {
    chart.parts.push_back(parseStyleList(stream));
    if (chart.parts.back().isEmpty()) stream.failExpecting("Brush (...)");
  } while (stream.acceptSign(","));
}

bool acceptChartClause(TokenStream& stream, ShadeChart& chart) {
  if (acceptChartSwitch(stream, chart)) return true;
  if (stream.acceptWord("angle")) {
    chart.angle = parseExpression(stream);
  } else if (stream.acceptWord("max")) {
    parseMaximumSize(stream, chart);
  } else if (stream.acceptWord("border")) {
    chart.border = parseStyleClause(stream, StyleClause::Kind::pen);
  } else if (stream.acceptWord("frame")) {
    chart.frame = parseStyleClause(stream, StyleClause::Kind::brush);
  } else if (stream.acceptWord("width")) {
    chart.width = parseMeasure(stream);
  } else if (stream.acceptWord("position")) {
    chart.placement = parseAnchor(stream);
  } else if (stream.acceptWord("style")) {
    parseChartParts(stream, chart);
  } else {
    return false;
  }
  return true;
}

ShadeKind parseChart(TokenStream& stream, bool isPie, bool half) {
  ShadeChart chart;
  chart.isPie = isPie;
  chart.half = half;
  while (acceptChartClause(stream, chart)) {
  }
  return chart;
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

ShadeKind parseKind(TokenStream& stream) {
  if (stream.acceptWord("ranges")) return parseRanges(stream);
  if (stream.acceptWord("values")) return parseValues(stream);
  if (stream.acceptWord("graduated")) return parseGraduated(stream);
  if (stream.acceptWord("density")) return parseDensity(stream);
  if (stream.acceptWord("bar")) return parseChart(stream, false, false);
  const bool half = stream.acceptWord("half");
  if (stream.acceptWord("pie")) return parseChart(stream, true, half);
  stream.failExpecting("Ranges, Values, Pie, Bar, Graduated o Density");
}

// With expression, ... [Ignore value, ...] kind
void parseTheme(TokenStream& stream, Shade& shade) {
  stream.expectWord("with", "With");
  do {
    shade.with.push_back(parseWrittenExpression(stream));
  } while (stream.acceptSign(","));
  if (stream.acceptWord("ignore")) shade.ignored = parseExpressionList(stream);
  shade.kind = parseKind(stream);
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

}  // namespace motor
