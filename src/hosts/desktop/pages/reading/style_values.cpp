#include "hosts/desktop/pages/reading/style_values.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace desktop::pages {
namespace {

constexpr double kSmallestFont = 8;  // pixels
constexpr double kLargestFont = 120;
constexpr double kLargestLineHeight = 4;
constexpr double kSmaller = 1 / 1.2;
constexpr double kLarger = 1.2;
constexpr int kNormalWeight = 400;
constexpr int kBoldWeight = 700;
constexpr double kMediumLine = 2;
constexpr qsizetype kMostFamilies = 8;
constexpr qsizetype kLongestFamily = 40;

template <class Value>
struct Keyword {
  const char* name;
  Value value;
};

template <class Value, std::size_t count>
std::optional<Value> find(const std::array<Keyword<Value>, count>& table, const QString& word) {
  const auto found = std::ranges::find_if(table, [&](const auto& each) { return word == QLatin1String(each.name); });
  if (found == table.end()) return std::nullopt;
  return found->value;
}

constexpr std::array kFontSizes{10.0, 13.0, 16.0, 18.0, 24.0, 32.0, 48.0};
constexpr int kMediumSize = 3;

constexpr std::array kFontSizeNames{
    Keyword<double>{"xx-small", 9},  Keyword<double>{"x-small", 10}, Keyword<double>{"small", 13},
    Keyword<double>{"medium", 16},   Keyword<double>{"large", 18},   Keyword<double>{"x-large", 24},
    Keyword<double>{"xx-large", 32},
};

constexpr std::array kAligns{
    Keyword<Align>{"left", Align::left},
    Keyword<Align>{"start", Align::left},
    Keyword<Align>{"center", Align::center},
    Keyword<Align>{"middle", Align::center},
    Keyword<Align>{"center-across-selection", Align::center},
    Keyword<Align>{"right", Align::right},
    Keyword<Align>{"end", Align::right},
    Keyword<Align>{"justify", Align::justify},
};

constexpr std::array kVerticalAligns{
    Keyword<VerticalAlign>{"baseline", VerticalAlign::baseline},
    Keyword<VerticalAlign>{"top", VerticalAlign::top},
    Keyword<VerticalAlign>{"text-top", VerticalAlign::top},
    Keyword<VerticalAlign>{"middle", VerticalAlign::middle},
    Keyword<VerticalAlign>{"center", VerticalAlign::middle},
    Keyword<VerticalAlign>{"bottom", VerticalAlign::bottom},
    Keyword<VerticalAlign>{"text-bottom", VerticalAlign::bottom},
    Keyword<VerticalAlign>{"sub", VerticalAlign::sub},
    Keyword<VerticalAlign>{"super", VerticalAlign::super},
};

constexpr std::array kWhiteSpaces{
    Keyword<WhiteSpace>{"normal", WhiteSpace::normal},    Keyword<WhiteSpace>{"nowrap", WhiteSpace::nowrap},
    Keyword<WhiteSpace>{"pre", WhiteSpace::pre},          Keyword<WhiteSpace>{"pre-wrap", WhiteSpace::preWrap},
    Keyword<WhiteSpace>{"pre-line", WhiteSpace::preWrap},
};

constexpr std::array kLetterCases{
    Keyword<LetterCase>{"none", LetterCase::asWritten},
    Keyword<LetterCase>{"uppercase", LetterCase::upper},
    Keyword<LetterCase>{"lowercase", LetterCase::lower},
    Keyword<LetterCase>{"capitalize", LetterCase::capitalized},
};

constexpr std::array kListMarks{
    Keyword<ListMark>{"none", ListMark::none},
    Keyword<ListMark>{"disc", ListMark::disc},
    Keyword<ListMark>{"circle", ListMark::circle},
    Keyword<ListMark>{"square", ListMark::square},
    Keyword<ListMark>{"decimal", ListMark::number},
    Keyword<ListMark>{"lower-alpha", ListMark::letter},
    Keyword<ListMark>{"lower-latin", ListMark::letter},
    Keyword<ListMark>{"upper-alpha", ListMark::capitalLetter},
    Keyword<ListMark>{"upper-latin", ListMark::capitalLetter},
    Keyword<ListMark>{"lower-roman", ListMark::roman},
    Keyword<ListMark>{"upper-roman", ListMark::capitalRoman},
};

constexpr std::array kLineStyles{
    Keyword<LineStyle>{"none", LineStyle::none},           Keyword<LineStyle>{"hidden", LineStyle::none},
    Keyword<LineStyle>{"solid", LineStyle::solid},         Keyword<LineStyle>{"dashed", LineStyle::dashed},
    Keyword<LineStyle>{"dotted", LineStyle::dotted},       Keyword<LineStyle>{"double", LineStyle::doubled},
    Keyword<LineStyle>{"groove", LineStyle::solid},        Keyword<LineStyle>{"ridge", LineStyle::solid},
    Keyword<LineStyle>{"inset", LineStyle::solid},         Keyword<LineStyle>{"outset", LineStyle::solid},
    Keyword<LineStyle>{"hairline", LineStyle::solid},      Keyword<LineStyle>{"dot-dash", LineStyle::dashed},
    Keyword<LineStyle>{"dot-dot-dash", LineStyle::dashed},
};

constexpr std::array kLineWidths{
    Keyword<double>{"thin", 1},
    Keyword<double>{"medium", kMediumLine},
    Keyword<double>{"thick", 4},
};

double clampedFont(double pixels) { return std::clamp(pixels, kSmallestFont, kLargestFont); }

}  // namespace

QStringList words(const QString& value) {
  QStringList all;
  QString word;
  int depth = 0;
  QChar quote;
  for (const QChar c : value) {
    if (c.isSpace() && depth <= 0 && quote.isNull()) {
      if (!word.isEmpty()) all.append(word);
      word.clear();
      continue;
    }
    if (!quote.isNull()) {
      if (c == quote) quote = QChar();
    } else if (c == u'"' || c == u'\'') {
      quote = c;
    } else {
      depth += c == u'(' ? 1 : (c == u')' ? -1 : 0);
    }
    word += c;
  }
  if (!word.isEmpty()) all.append(word);
  return all;
}

std::optional<Align> alignFrom(const QString& word) { return find(kAligns, word); }
std::optional<VerticalAlign> verticalAlignFrom(const QString& word) { return find(kVerticalAligns, word); }
std::optional<WhiteSpace> whiteSpaceFrom(const QString& word) { return find(kWhiteSpaces, word); }
std::optional<LetterCase> letterCaseFrom(const QString& word) { return find(kLetterCases, word); }
std::optional<ListMark> listMarkFrom(const QString& word) { return find(kListMarks, word); }
std::optional<LineStyle> lineStyleFrom(const QString& word) { return find(kLineStyles, word); }

std::optional<double> lineWidthFrom(const QString& word, double em) {
  if (const auto named = find(kLineWidths, word)) return named;
  const auto length = lengthFrom(word, em);
  if (!length || !length->isPixels()) return std::nullopt;
  return length->value > 0 ? std::max(1.0, std::round(length->value)) : 0;
}

Border borderFrom(const QString& value, double em) {
  Border border;
  border.pixels = kMediumLine;
  for (const QString& each : words(value)) {
    const QString word = each.toLower();
    if (const auto line = lineStyleFrom(word)) {
      border.line = *line;
    } else if (const auto width = lineWidthFrom(word, em)) {
      border.pixels = *width;
    } else if (const auto color = colorFrom(word)) {
      border.color = *color;
    }
  }
  return border;
}

int weightFrom(const QString& value, int outer) {
  const QString word = value.toLower();
  if (word == QLatin1String("bold")) return kBoldWeight;
  if (word == QLatin1String("normal") || word == QLatin1String("lighter")) return kNormalWeight;
  if (word == QLatin1String("bolder")) return std::max(outer, kBoldWeight);
  bool isNumber = false;
  const int weight = value.toInt(&isNumber);
  return isNumber && weight >= 1 && weight <= 1000 ? weight : outer;
}

QString familiesFrom(const QString& value) {
  QStringList families;
  for (const QString& each : value.split(u',')) {
    QString family;
    for (const QChar c : each) {
      if (c.isLetterOrNumber() || c == u' ' || c == u'-' || c == u'_' || c == u'.') family += c;
    }
    family = family.simplified().left(kLongestFamily);
    if (!family.isEmpty() && families.size() < kMostFamilies) families.append(family);
  }
  return families.join(u',');
}

std::optional<double> fontPixelsFrom(const QString& value, double outer) {
  const QString word = value.toLower();
  if (const auto named = find(kFontSizeNames, word)) return named;
  if (word == QLatin1String("smaller")) return clampedFont(outer * kSmaller);
  if (word == QLatin1String("larger")) return clampedFont(outer * kLarger);
  const auto length = lengthFrom(word, outer);
  if (!length || length->pixels(outer) <= 0) return std::nullopt;
  return clampedFont(length->pixels(outer));
}

std::optional<double> numberedFontPixels(const QString& size) {
  bool isNumber = false;
  const int number = size.trimmed().toInt(&isNumber);
  if (!isNumber) return std::nullopt;
  const bool isRelative = size.contains(u'+') || size.contains(u'-');
  const int index = std::clamp(number, -10, 10) + (isRelative ? kMediumSize : 0) - 1;
  return kFontSizes[static_cast<std::size_t>(std::clamp(index, 0, static_cast<int>(kFontSizes.size()) - 1))];
}

std::optional<double> lineHeightFrom(const QString& value, double em) {
  if (value.compare(QLatin1String("normal"), Qt::CaseInsensitive) == 0) return 0;
  bool isNumber = false;
  double factor = value.toDouble(&isNumber);
  if (!isNumber) {
    const auto length = lengthFrom(value, em);
    if (!length) return std::nullopt;
    factor = length->pixels(em) / em;
  }
  if (!std::isfinite(factor) || factor <= 0) return std::nullopt;
  return std::min(factor, kLargestLineHeight);
}

}  // namespace desktop::pages
