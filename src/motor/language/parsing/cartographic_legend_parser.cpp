#include <array>

#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/statement_parsers.h"
#include "motor/language/parsing/style_parser.h"
#include "motor/language/parsing/window_shape_parser.h"

// Create Cartographic Legend.
namespace motor {

namespace {

// [Font (...)]
void acceptFont(TokenStream& stream, std::optional<StyleClause>& font) {
  if (stream.isWord("font")) font = parseStyleClause(stream, StyleClause::Kind::font);
}

// Text t  {Line Pen ... | Region Pen ... Brush ... | Symbol ...}
LegendSample parseSample(TokenStream& stream) {
  LegendSample sample;
  sample.position = stream.before().position;
  sample.text = parseExpression(stream);
  if (stream.isWord("line")) {
    sample.kind = LegendSample::Kind::line;
    if (!stream.isSign("(", 1)) stream.next();
  } else if (stream.acceptWord("region") || stream.isWord("pen") || stream.isWord("brush")) {
    sample.kind = LegendSample::Kind::region;
  }
  sample.style = parseStyleList(stream);
  return sample;
}

// Style [Font (...)] [NoRefresh] sample ...
void readSamples(TokenStream& stream, LegendFrame& frame) {
  acceptFont(stream, frame.sampleFont);
  stream.acceptWord("norefresh");
  while (stream.acceptWord("text")) frame.samples.push_back(parseSample(stream));
}

// Using [Column c | Column Object] [Label e | Label Default]
void ignoreUsing(TokenStream& stream, LegendFrame& /*frame*/) {
  if (stream.acceptWord("column")) static_cast<void>(parseExpression(stream));
  if (stream.acceptWord("label") && !stream.acceptWord("default")) static_cast<void>(parseExpression(stream));
}

template <auto kField, typename Part>
void readBorder(TokenStream& stream, Part& part) {
  part.*kField = parseStyleClause(stream, StyleClause::Kind::pen);
}

// t [Font (...)]
template <auto kField, typename Part>
void readText(TokenStream& stream, Part& part) {
  FrameText& text = part.*kField;
  if (!stream.isWord("font")) text.text = parseExpression(stream);
  acceptFont(stream, text.font);
}

using FrameRule = ClauseRule<LegendFrame>;

constexpr std::array kFrameRules = {
    FrameRule{"position", Support::done,
              [](TokenStream& stream, LegendFrame& frame) { frame.place = parsePlacement(stream); }},
    FrameRule{"title", Support::done, readText<&LegendFrame::title>},
    FrameRule{"subtitle", Support::done, readText<&LegendFrame::subtitle>},
    FrameRule{"style", Support::done, readSamples},
    FrameRule{"border", Support::done, readBorder<&LegendFrame::border>},
    FrameRule{"using", Support::passedOver, ignoreUsing},
};

LegendFrame parseFrame(TokenStream& stream) {
  LegendFrame frame;
  frame.position = stream.before().position;
  stream.expectWord("from", "From Layer");
  stream.expectWord("layer", "Layer");
  frame.layer = parseLayerReference(stream);
  acceptClauses<LegendFrame>(stream, kFrameRules, frame);
  return frame;
}

[[noreturn]] void failDefault(TokenStream& stream, CreateCartographicLegend& /*legend*/) {
  stream.failExpecting("Frame Title, Frame Subtitle, Frame Style o Frame Border");
}

using Rule = ClauseRule<CreateCartographicLegend>;
using Legend = CreateCartographicLegend;

constexpr std::array kRules = {
    Rule{"from window", Support::done, readExpression<&Legend::window>},
    Rule{"default frame title", Support::done, readText<&Legend::defaultTitle>},
    Rule{"default frame subtitle", Support::done, readText<&Legend::defaultSubtitle>},
    Rule{"default frame style", Support::done, readText<&Legend::defaultStyle>},
    Rule{"default frame border", Support::done, readBorder<&Legend::defaultBorder>},
    Rule{"default", Support::incomplete, failDefault},
    Rule{"window title", Support::passedOver, ignoreExpression<Legend>},
    Rule{"scrollbars", Support::passedOver, ignoreSwitch<Legend>},
    Rule{"style size small", Support::passedOver, readNothing<Legend>},
    Rule{"style size large", Support::passedOver, readNothing<Legend>},
    Rule{"behind", Support::passedOver, readNothing<Legend>},
    Rule{"portrait", Support::passedOver, readNothing<Legend>},
    Rule{"landscape", Support::passedOver, readNothing<Legend>},
    Rule{"custom", Support::passedOver, readNothing<Legend>},
};

}  // namespace

Statement parseCreateCartographicLegend(TokenStream& stream, Position position) {
  CreateCartographicLegend legend;
  legend.position = position;
  while (acceptClause(stream, windowShapeRules(), legend.shape) ||
         acceptClause<CreateCartographicLegend>(stream, kRules, legend)) {
  }
  while (stream.acceptWord("frame")) legend.frames.push_back(parseFrame(stream));
  return legend;
}

ClauseEntries cartographicLegendClauses() {
  ClauseEntries entries;
  for (const ClauseRule<WindowShape>& rule : windowShapeRules())
    entries.push_back({"", rule.words, Support::passedOver});
  addEntries<CreateCartographicLegend>(entries, "", kRules);
  addEntries<LegendFrame>(entries, "frame", kFrameRules);
  return entries;
}

}  // namespace motor
