#include "motor/language/parsing/passed_over_parsers.h"

#include <algorithm>
#include <array>
#include <span>

#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/style_parser.h"
#include "motor/language/parsing/window_shape_parser.h"

namespace motor {

namespace {

// What stands after the words of a clause.
enum class Follows { nothing, aSwitch, expression, expressions, measure, point, twoPoints, choice };

// A clause by its words (the second may be null).
struct Clause {
  const char* first;
  const char* second;
  Follows follows;
};
using Clauses = std::span<const Clause>;

void readChoice(TokenStream& stream) {
  if (stream.acceptWords("to", "fit")) return;
  static_cast<void>(parseExpressionList(stream));
}

void readWhatFollows(TokenStream& stream, Follows follows) {
  switch (follows) {
    case Follows::nothing:
      return;
    case Follows::aSwitch:
      static_cast<void>(parseSwitch(stream));
      return;
    case Follows::expression:
      static_cast<void>(parseExpression(stream));
      return;
    case Follows::expressions:
      static_cast<void>(parseExpressionList(stream));
      return;
    case Follows::measure:
      static_cast<void>(parseMeasure(stream));
      return;
    case Follows::twoPoints:
      static_cast<void>(parseCoordinatePair(stream));
      [[fallthrough]];
    case Follows::point:
      static_cast<void>(parseCoordinatePair(stream));
      return;
    case Follows::choice:
      readChoice(stream);
      return;
  }
}

bool acceptClause(TokenStream& stream, Clauses clauses) {
  const auto clause = std::find_if(clauses.begin(), clauses.end(), [&stream](const Clause& row) {
    return stream.isWord(row.first) && (row.second == nullptr || stream.isWord(row.second, 1));
  });
  if (clause == clauses.end()) return false;
  stream.next();
  if (clause->second != nullptr) stream.next();
  readWhatFollows(stream, clause->follows);
  return true;
}

// Says whether there were any.
bool readClauses(TokenStream& stream, Clauses clauses) {
  bool any = false;
  while (acceptClause(stream, clauses) || acceptStyleClause(stream)) any = true;
  return any;
}

void expectClauses(TokenStream& stream, Clauses clauses, const char* expected) {
  if (!readClauses(stream, clauses)) stream.failExpecting(expected);
}

void readWindowShape(TokenStream& stream, Clauses clauses) {
  WindowShape shape;
  while (acceptClause(stream, windowShapeRules(), shape) || acceptClause(stream, clauses)) {
  }
}

// Expressions, each maybe with a name for the reader, and the table they are read from.
void readColumnsOfTable(TokenStream& stream) {
  if (!stream.acceptSign("*")) {
    do {
      static_cast<void>(parseExpression(stream));
      if (stream.peek().kind == Token::Kind::text) stream.next();
    } while (stream.acceptSign(","));
  }
  stream.expectWord("from", "From");
  static_cast<void>(parseName(stream, "el nombre de una tabla"));
}

constexpr std::array kBrowse = {
    Clause{"row", nullptr, Follows::expression},
    Clause{"column", nullptr, Follows::expression},
    Clause{"grid", nullptr, Follows::aSwitch},
};

constexpr std::array kGraph = {
    Clause{"using", nullptr, Follows::expression},
    Clause{"series", "in", Follows::nothing},
    Clause{"columns", nullptr, Follows::nothing},
    Clause{"rows", nullptr, Follows::nothing},
};

constexpr std::array kSetBrowse = {
    Clause{"window", nullptr, Follows::expression},
    Clause{"grid", nullptr, Follows::aSwitch},
    Clause{"row", nullptr, Follows::expression},
    Clause{"column", nullptr, Follows::expression},
};

constexpr std::array kFrame = {
    Clause{"title", nullptr, Follows::expression},
    Clause{"from", "window", Follows::expression},
    Clause{"fillframe", nullptr, Follows::aSwitch},
};

constexpr std::array kSetLayout = {
    Clause{"window", nullptr, Follows::expression},  Clause{"center", nullptr, Follows::point},
    Clause{"extents", nullptr, Follows::choice},     Clause{"zoom", nullptr, Follows::choice},
    Clause{"pagebreaks", nullptr, Follows::aSwitch}, Clause{"ruler", nullptr, Follows::aSwitch},
    Clause{"frame", "contents", Follows::aSwitch},   Clause{"active", nullptr, Follows::nothing},
    Clause{"objects", "alpha", Follows::expression}, Clause{"objects", "translucency", Follows::expression},
    Clause{"objects", "patterns", Follows::aSwitch},
};

constexpr std::array kSetGraph = {
    Clause{"window", nullptr, Follows::expression},
    Clause{"type", nullptr, Follows::nothing},
    Clause{"area", nullptr, Follows::nothing},
    Clause{"bar", nullptr, Follows::nothing},
    Clause{"line", nullptr, Follows::nothing},
    Clause{"pie", nullptr, Follows::nothing},
    Clause{"xy", nullptr, Follows::nothing},
    Clause{"stacked", nullptr, Follows::aSwitch},
    Clause{"overlapped", nullptr, Follows::aSwitch},
    Clause{"droplines", nullptr, Follows::aSwitch},
    Clause{"rotated", nullptr, Follows::aSwitch},
    Clause{"show3d", nullptr, Follows::aSwitch},
    Clause{"overlap", nullptr, Follows::expression},
    Clause{"gutter", nullptr, Follows::expression},
    Clause{"angle", nullptr, Follows::expression},
    Clause{"counter", nullptr, Follows::nothing},
    Clause{"title", nullptr, Follows::expression},
    Clause{"subtitle", nullptr, Follows::expression},
    Clause{"footnote", nullptr, Follows::expression},
    Clause{"titlegroup", nullptr, Follows::expression},
    Clause{"titleaxisy1", nullptr, Follows::expression},
    Clause{"titleaxisy2", nullptr, Follows::expression},
    Clause{"titleseries", nullptr, Follows::expression},
    Clause{"legend", nullptr, Follows::aSwitch},
    Clause{"label", "axis", Follows::aSwitch},
    Clause{"value", "axis", Follows::aSwitch},
    Clause{"axis", nullptr, Follows::aSwitch},
    Clause{"labels", nullptr, Follows::aSwitch},
    Clause{"grid", nullptr, Follows::aSwitch},
    Clause{"major", "grid", Follows::aSwitch},
    Clause{"minor", "grid", Follows::aSwitch},
    Clause{"major", "tick", Follows::aSwitch},
    Clause{"minor", "tick", Follows::aSwitch},
    Clause{"min", nullptr, Follows::expression},
    Clause{"max", nullptr, Follows::expression},
    Clause{"cross", nullptr, Follows::expression},
    Clause{"series", nullptr, Follows::expression},
    Clause{"restore", nullptr, Follows::nothing},
};

constexpr std::array kPrinter = {
    Clause{"default", nullptr, Follows::nothing},        Clause{"name", nullptr, Follows::expression},
    Clause{"orientation", "portrait", Follows::nothing}, Clause{"orientation", "landscape", Follows::nothing},
    Clause{"copies", nullptr, Follows::expression},      Clause{"papersize", nullptr, Follows::expression},
    Clause{"border", nullptr, Follows::aSwitch},         Clause{"truecolor", nullptr, Follows::aSwitch},
    Clause{"method", nullptr, Follows::expression},      Clause{"dither", nullptr, Follows::expression},
};

constexpr std::array kCartographic = {
    Clause{"window", nullptr, Follows::expression},  Clause{"refresh", nullptr, Follows::nothing},
    Clause{"portrait", nullptr, Follows::nothing},   Clause{"landscape", nullptr, Follows::nothing},
    Clause{"custom", nullptr, Follows::nothing},     Clause{"align", nullptr, Follows::nothing},
    Clause{"columns", nullptr, Follows::expression}, Clause{"lines", nullptr, Follows::expression},
    Clause{"frame", "order", Follows::expressions},
};

constexpr std::array kDigitizer = {
    Clause{"label", nullptr, Follows::expression},       Clause{"units", nullptr, Follows::expression},
    Clause{"width", nullptr, Follows::expression},       Clause{"height", nullptr, Follows::expression},
    Clause{"resolution", nullptr, Follows::expressions}, Clause{"button", nullptr, Follows::expressions},
    Clause{"mode", nullptr, Follows::aSwitch},
};

constexpr std::array kStyles = {"pen", "brush", "symbol", "font", "borderpen", "linepen"};

}  // namespace

void readBrowse(TokenStream& stream) {
  readColumnsOfTable(stream);
  readWindowShape(stream, kBrowse);
}

void readLayout(TokenStream& stream) { readWindowShape(stream, {}); }

void readGraph(TokenStream& stream) {
  readColumnsOfTable(stream);
  readWindowShape(stream, kGraph);
}

void readCreateFrame(TokenStream& stream) {
  if (stream.acceptWords("into", "window") || stream.acceptWords("into", "variable")) {
    static_cast<void>(parseExpression(stream));
  }
  readWhatFollows(stream, Follows::twoPoints);
  readClauses(stream, kFrame);
}

void readSetLayout(TokenStream& stream) { expectClauses(stream, kSetLayout, "una cláusula de Set Layout"); }
void readSetBrowse(TokenStream& stream) { expectClauses(stream, kSetBrowse, "una cláusula de Set Browse"); }
void readSetGraph(TokenStream& stream) { expectClauses(stream, kSetGraph, "una cláusula de Set Graph"); }
void readSetPrinterSettings(TokenStream& stream) {
  expectClauses(stream, kPrinter, "una cláusula de Set PrinterSettings");
}

void readSetCartographicLegend(TokenStream& stream) {
  stream.expectWord("legend", "Legend");
  expectClauses(stream, kCartographic, "una cláusula de Set Cartographic Legend");
}

void readSetDigitizer(TokenStream& stream) {
  if (stream.acceptWord("off")) return;
  do {
    readWhatFollows(stream, Follows::twoPoints);
    if (stream.acceptWord("label")) static_cast<void>(parseExpression(stream));
  } while (stream.acceptSign(","));
  if (stream.acceptWord("coordsys")) static_cast<void>(parseCoordSysClause(stream));
  readClauses(stream, kDigitizer);
}

void readSetStyle(TokenStream& stream) {
  if (acceptStyleClause(stream)) return;
  const bool isKnown =
      std::any_of(kStyles.begin(), kStyles.end(), [&stream](const char* style) { return stream.acceptWord(style); });
  if (!isKnown) stream.failExpecting("Pen, Brush, Symbol, Font, BorderPen o LinePen");
  static_cast<void>(parseExpression(stream));
}

void readSetResolution(TokenStream& stream) { static_cast<void>(parseExpression(stream)); }

void readSetProgressBars(TokenStream& stream) {
  if (!stream.acceptWord("on") && !stream.acceptWord("off")) stream.failExpecting("On u Off");
}

void readReloadSymbols(TokenStream& stream) {
  if (!stream.acceptWord("using")) return;
  if (stream.acceptWord("bitmap")) return;
  stream.expectWord("vector", "Bitmap o Vector");
  static_cast<void>(parseExpression(stream));
}

void readPrint(TokenStream& stream) {
  do {
    static_cast<void>(parseExpression(stream));
  } while (stream.acceptSign(",") || stream.acceptSign(";"));
}

}  // namespace motor
