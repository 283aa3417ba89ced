#include "hosts/desktop/pages/reading/markup.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace desktop::pages {
namespace {

// The toolkit's line heights are parts of what a line takes by itself, about this much of the font's size.
constexpr double kOwnLine = 1.17;
constexpr double kLeastExtraLine = 1.1;
constexpr double kWidestPart = 100;  // percent

QLatin1String nameOf(Align align) {
  switch (align) {
    case Align::center:
      return QLatin1String("center");
    case Align::right:
      return QLatin1String("right");
    case Align::justify:
    case Align::left:
      break;
  }
  return QLatin1String("left");
}

QLatin1String nameOf(VerticalAlign align) {
  switch (align) {
    case VerticalAlign::middle:
      return QLatin1String("middle");
    case VerticalAlign::bottom:
      return QLatin1String("bottom");
    case VerticalAlign::sub:
      return QLatin1String("sub");
    case VerticalAlign::super:
      return QLatin1String("super");
    case VerticalAlign::baseline:
    case VerticalAlign::top:
      break;
  }
  return QLatin1String("top");
}

QLatin1String nameOf(LineStyle line) {
  switch (line) {
    case LineStyle::dashed:
      return QLatin1String("dashed");
    case LineStyle::dotted:
      return QLatin1String("dotted");
    case LineStyle::doubled:
      return QLatin1String("double");
    case LineStyle::none:
    case LineStyle::solid:
      break;
  }
  return QLatin1String("solid");
}

QString quotedFamilies(const QString& families) {
  QString quoted = families;
  return u'\'' + quoted.replace(u',', QLatin1String("','")) + u'\'';
}

class Css {
 public:
  Css& add(const char* property, const QString& value) {
    css_ += QLatin1String(property) + u':' + value + u';';
    return *this;
  }
  Css& addPixels(const char* property, int pixels) {
    return add(property, QString::number(pixels) + QLatin1String("px"));
  }
  [[nodiscard]] QString text() const { return css_; }

 private:
  QString css_;
};

QString decorationOf(const TextStyle& style) {
  if (style.isUnderlined)
    return style.isStruckOut ? QStringLiteral("underline line-through") : QStringLiteral("underline");
  return style.isStruckOut ? QStringLiteral("line-through") : QStringLiteral("none");
}

void addColors(Css& css, const TextStyle& style, const TextStyle* base) {
  if (style.color.isValid() && (base == nullptr || style.color != base->color)) css.add("color", style.color.name());
  if (style.background.isValid()) css.add("background-color", style.background.name());
}

// `base` null: everything.
QString textCss(const TextStyle& style, const TextStyle* base, Around around, double zoom) {
  Css css;
  const auto differs = [&](auto TextStyle::*member) { return base == nullptr || style.*member != base->*member; };
  if (!style.families.isEmpty() && differs(&TextStyle::families)) {
    css.add("font-family", quotedFamilies(style.families));
  }
  if (differs(&TextStyle::pixels)) css.addPixels("font-size", std::max(1, zoomed(style.pixels, zoom)));
  if (differs(&TextStyle::weight)) css.add("font-weight", QString::number(style.weight));
  const bool isWhole = around == Around::styles;
  if (base == nullptr ? isWhole || style.isItalic : differs(&TextStyle::isItalic)) {
    css.add("font-style", style.isItalic ? QStringLiteral("italic") : QStringLiteral("normal"));
  }
  const bool isPlain = !style.isUnderlined && !style.isStruckOut;
  if (base == nullptr ? isWhole || !isPlain : differs(&TextStyle::isUnderlined) || differs(&TextStyle::isStruckOut)) {
    css.add("text-decoration", decorationOf(style));
  }
  if (style.script != VerticalAlign::baseline) css.add("vertical-align", nameOf(style.script));
  addColors(css, style, base);
  return css.text();
}

constexpr std::array kSideNames{"border-top", "border-right", "border-bottom", "border-left"};

}  // namespace

QString escaped(QStringView text) {
  QString html;
  html.reserve(text.size());
  for (const QChar c : text) {
    switch (c.unicode()) {
      case u'&':
        html += QLatin1String("&amp;");
        break;
      case u'<':
        html += QLatin1String("&lt;");
        break;
      case u'>':
        html += QLatin1String("&gt;");
        break;
      case u'"':
        html += QLatin1String("&quot;");
        break;
      default:
        html += c;
    }
  }
  return html;
}

int zoomed(double pixels, double zoom) { return static_cast<int>(std::lround(pixels * zoom)); }

QString textCss(const TextStyle& style, Around around, double zoom) { return textCss(style, nullptr, around, zoom); }

QString textCss(const TextStyle& style, const TextStyle& base, double zoom) {
  return textCss(style, &base, Around::styles, zoom);
}

QString blockCss(const PageStyle& style, Around around) {
  Css css;
  const bool isWhole = around == Around::styles;
  if (isWhole ? style.align != Align::justify : style.align == Align::center || style.align == Align::right) {
    css.add("text-align", nameOf(style.align));
  }
  if (isWhole && style.whiteSpace == WhiteSpace::normal) css.add("white-space", QStringLiteral("normal"));
  if (style.whiteSpace == WhiteSpace::nowrap) css.add("white-space", QStringLiteral("nowrap"));
  if (style.whiteSpace == WhiteSpace::pre) css.add("white-space", QStringLiteral("pre"));
  if (style.whiteSpace == WhiteSpace::preWrap) css.add("white-space", QStringLiteral("pre-wrap"));
  const double lines = style.lineHeight / kOwnLine;
  if (lines > kLeastExtraLine) css.add("line-height", QString::number(zoomed(lines, 100)) + u'%');
  return css.text();
}

QLatin1String blockAttribute(const PageStyle& style) {
  return style.align == Align::justify ? QLatin1String(" align=\"justify\"") : QLatin1String();
}

QString cellCss(const PageStyle& style, double zoom) {
  Css css;
  QString padding;
  for (const double side : style.padding) padding += QString::number(zoomed(side, zoom)) + QLatin1String("px ");
  css.add("padding", padding.trimmed());
  for (const Side side : {kTop, kRight, kBottom, kLeft}) {
    const Border& border = style.border[side];
    if (!border.isSeen()) continue;
    const int width = std::max(1, static_cast<int>(std::floor(border.pixels * zoom)));
    const QColor color = border.color.isValid() ? border.color : QColor(Qt::black);
    css.add(kSideNames[side],
            QString::number(width) + QLatin1String("px ") + nameOf(border.line) + u' ' + color.name());
  }
  if (style.background.isValid()) css.add("background-color", style.background.name());
  css.add("vertical-align", nameOf(style.vertical));
  return css.text();
}

QString widthText(const Length& width, double zoom) {
  switch (width.unit) {
    case Length::Unit::pixels:
      return width.value > 0 ? QString::number(std::max(1, zoomed(width.value, zoom))) : QString();
    case Length::Unit::percent:
      if (width.value <= 0) return {};
      return QString::number(std::lround(std::min(width.value, kWidestPart))) + u'%';
    case Length::Unit::automatic:
      break;
  }
  return {};
}

}  // namespace desktop::pages
