#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/statement_parsers.h"
#include "motor/language/parsing/style_parser.h"

// Create Cartographic Legend.
namespace motor {

namespace {

// [Font (...)], which frames keep for themselves.
void readFont(TokenStream& stream) {
  if (stream.isWord("font")) static_cast<void>(parseStyleClause(stream, StyleClause::Kind::font));
}

// Text t  {Line Pen ... | Region Pen ... Brush ... | Symbol ...}
LegendSample parseSample(TokenStream& stream, Position position) {
  LegendSample sample;
  sample.position = position;
  sample.text = parseExpression(stream);
  if (stream.isWord("line") && !stream.isSign("(", 1)) stream.next();
  stream.acceptWord("region");
  sample.style = parseStyleList(stream);
  return sample;
}

// Style [Font (...)] [NoRefresh] sample ...
void parseSamples(TokenStream& stream, LegendFrame& frame) {
  readFont(stream);
  stream.acceptWord("norefresh");
  while (stream.isWord("text")) {
    const Position position = stream.position();
    stream.next();
    frame.samples.push_back(parseSample(stream, position));
  }
}

// Using [Column c | Column Object] [Label e | Label Default]
void readUsing(TokenStream& stream) {
  if (stream.acceptWord("column")) static_cast<void>(parseExpression(stream));
  if (stream.acceptWord("label") && !stream.acceptWord("default")) static_cast<void>(parseExpression(stream));
}

bool acceptFrameClause(TokenStream& stream, LegendFrame& frame) {
  if (stream.acceptWord("position")) {
    static_cast<void>(parsePlacement(stream));
  } else if (stream.acceptWord("border")) {
    static_cast<void>(parseStyleClause(stream, StyleClause::Kind::pen));
  } else if (stream.acceptWord("title")) {
    frame.title = parseExpression(stream);
    readFont(stream);
  } else if (stream.acceptWord("subtitle")) {
    frame.subtitle = parseExpression(stream);
    readFont(stream);
  } else if (stream.acceptWord("using")) {
    readUsing(stream);
  } else if (stream.acceptWord("style")) {
    parseSamples(stream, frame);
  } else {
    return false;
  }
  return true;
}

LegendFrame parseFrame(TokenStream& stream, Position position) {
  LegendFrame frame;
  frame.position = position;
  stream.expectWord("from", "From Layer");
  stream.expectWord("layer", "Layer");
  frame.layer = parseLayerReference(stream);
  while (acceptFrameClause(stream, frame)) {
  }
  return frame;
}

// Default Frame {Title t | Subtitle t | Style t | Border Pen ...} [Font (...)]
void readFrameDefault(TokenStream& stream) {
  stream.expectWord("frame", "Frame");
  if (stream.acceptWord("border")) {
    static_cast<void>(parseStyleClause(stream, StyleClause::Kind::pen));
    return;
  }
  if (!stream.acceptWord("title") && !stream.acceptWord("subtitle") && !stream.acceptWord("style")) {
    stream.failExpecting("Title, Subtitle, Style o Border");
  }
  if (!stream.isWord("font")) static_cast<void>(parseExpression(stream));
  readFont(stream);
}

bool acceptLook(TokenStream& stream) {
  if (stream.acceptWord("scrollbars")) {
    static_cast<void>(parseSwitch(stream));
    return true;
  }
  if (stream.acceptWords("style", "size")) {
    if (!stream.acceptWord("small") && !stream.acceptWord("large")) stream.failExpecting("Small o Large");
    return true;
  }
  return stream.acceptWord("behind") || stream.acceptWord("portrait") || stream.acceptWord("landscape") ||
         stream.acceptWord("custom");
}

bool acceptLegendClause(TokenStream& stream, CreateCartographicLegend& legend) {
  if (acceptWindowShape(stream, legend.shape) || acceptLook(stream)) return true;
  if (stream.acceptWords("window", "title")) {
    legend.title = parseExpression(stream);
  } else if (stream.acceptWords("from", "window")) {
    legend.window = parseExpression(stream);
  } else if (stream.acceptWord("default")) {
    readFrameDefault(stream);
  } else {
    return false;
  }
  return true;
}

}  // namespace

Statement parseCreateCartographicLegend(TokenStream& stream, Position position) {
  CreateCartographicLegend legend;
  legend.position = position;
  while (acceptLegendClause(stream, legend)) {
  }
  while (stream.isWord("frame")) {
    const Position at = stream.position();
    stream.next();
    legend.frames.push_back(parseFrame(stream, at));
  }
  return legend;
}

}  // namespace motor
