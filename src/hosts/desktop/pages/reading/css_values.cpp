#include "hosts/desktop/pages/reading/css_values.h"

#include <QString>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>

namespace desktop::pages {
namespace {

constexpr double kPixelsPerInch = 96;
constexpr double kRootFont = 16;  // pixels
constexpr double kExPerEm = 0.5;

struct Unit {
  const char* name;
  double pixels;  // 0: of the font
};

constexpr std::array kUnits{
    Unit{"px", 1},
    Unit{"pt", kPixelsPerInch / 72},
    Unit{"pc", kPixelsPerInch / 6},
    Unit{"in", kPixelsPerInch},
    Unit{"cm", kPixelsPerInch / 2.54},
    Unit{"mm", kPixelsPerInch / 25.4},
    Unit{"rem", kRootFont},
};

struct SystemColor {
  const char* name;
  QRgb color;
};

constexpr std::array kSystemColors{
    SystemColor{"windowtext", 0xFF000000},    SystemColor{"window", 0xFFFFFFFF},
    SystemColor{"buttonface", 0xFFE0E0E0},    SystemColor{"buttontext", 0xFF000000},
    SystemColor{"graytext", 0xFF808080},      SystemColor{"highlight", 0xFF142B4D},
    SystemColor{"highlighttext", 0xFFFFFFFF}, SystemColor{"infobackground", 0xFFFFFFE1},
    SystemColor{"infotext", 0xFF000000},
};

// How many of the text's first characters are a number.
qsizetype numberLength(QStringView text) {
  qsizetype at = !text.isEmpty() && (text[0] == u'-' || text[0] == u'+') ? 1 : 0;
  const auto isDigit = [&] { return at < text.size() && text[at] >= u'0' && text[at] <= u'9'; };
  const qsizetype first = at;
  while (isDigit()) ++at;
  qsizetype digits = at - first;
  if (at < text.size() && text[at] == u'.') {
    const qsizetype point = at++;
    while (isDigit()) ++at;
    digits += at - point - 1;
  }
  return digits == 0 ? 0 : at;
}

Length pixelLength(double pixels) { return {Length::Unit::pixels, std::clamp(pixels, -kLongest, kLongest)}; }

// A part of 255 or a percentage.
int channel(const QString& text) {
  const QString part = text.trimmed();
  const bool isPercent = part.endsWith(u'%');
  const double value = part.first(part.size() - (isPercent ? 1 : 0)).toDouble();
  return std::isfinite(value) ? static_cast<int>(std::clamp(isPercent ? value * 2.55 : value, 0.0, 255.0)) : 0;
}

std::optional<QColor> fromFunction(const QString& name) {
  const qsizetype open = name.indexOf(u'(');
  const qsizetype close = name.indexOf(u')');
  if (open < 0 || close < open) return std::nullopt;
  const QStringList parts = name.sliced(open + 1, close - open - 1).split(u',');
  if (parts.size() < 3) return std::nullopt;
  if (parts.size() > 3 && parts[3].trimmed().toDouble() < 0.5) return QColor();
  return QColor(channel(parts[0]), channel(parts[1]), channel(parts[2]));
}

}  // namespace

double Length::pixels(double whole) const {
  switch (unit) {
    case Unit::pixels:
      return value;
    case Unit::percent:
      return value * whole / 100;
    case Unit::automatic:
      break;
  }
  return 0;
}

std::optional<Length> lengthFrom(QStringView text, double em) {
  text = text.trimmed();
  if (text.compare(QLatin1String("auto"), Qt::CaseInsensitive) == 0) return Length();
  const qsizetype digits = numberLength(text);
  if (digits == 0) return std::nullopt;
  const double number = text.first(digits).toDouble();
  if (!std::isfinite(number)) return std::nullopt;
  const QStringView unit = text.sliced(digits).trimmed();
  if (unit.isEmpty()) return pixelLength(number);
  if (unit == u'%') return Length{Length::Unit::percent, std::clamp(number, -1000.0, 1000.0)};
  if (unit.compare(QLatin1String("em"), Qt::CaseInsensitive) == 0) return pixelLength(number * em);
  if (unit.compare(QLatin1String("ex"), Qt::CaseInsensitive) == 0) return pixelLength(number * em * kExPerEm);
  for (const Unit& each : kUnits) {
    if (unit.compare(QLatin1String(each.name), Qt::CaseInsensitive) == 0) return pixelLength(number * each.pixels);
  }
  return std::nullopt;
}

std::optional<Length> attributeLength(QStringView text) {
  text = text.trimmed();
  const qsizetype digits = numberLength(text);
  if (digits == 0) return std::nullopt;
  const bool isPercent = digits < text.size() && text[digits] == u'%';
  const std::optional<Length> length = lengthFrom(text.first(digits + (isPercent ? 1 : 0)), 0);
  if (!length || length->value < 0) return std::nullopt;
  return length;
}

std::optional<QColor> colorFrom(QStringView text) {
  constexpr qsizetype kLongestColor = 64;
  text = text.trimmed();
  if (text.isEmpty() || text.size() > kLongestColor) return std::nullopt;
  const QString name = text.toString().toLower();
  if (name == QLatin1String("transparent") || name == QLatin1String("none")) return QColor();
  if (name.startsWith(QLatin1String("rgb"))) return fromFunction(name);
  for (const SystemColor& each : kSystemColors) {
    if (name == QLatin1String(each.name)) return QColor(each.color);
  }
  if (name[0] == u'#' && name.size() != 4 && name.size() != 7) return std::nullopt;
  if (!QColor::isValidColor(name)) return std::nullopt;
  return QColor(name);
}

std::optional<QColor> attributeColor(QStringView text) {
  if (const auto color = colorFrom(text)) return color;
  return colorFrom(QString(u'#' + text.trimmed().toString()));
}

}  // namespace desktop::pages
