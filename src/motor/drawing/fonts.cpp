#include "motor/drawing/fonts.h"

#include <QFontDatabase>
#include <algorithm>
#include <cmath>

#include "motor/drawing/pens.h"

namespace motor {

namespace {

constexpr double kTallest = 8192;    // pixels; letters of any height are outlines of about that size
constexpr double kTallestOwn = 256;  // of a size in points

constexpr int kBold = 1;
constexpr int kItalic = 2;
constexpr int kUnderline = 4;
constexpr int kStrikeOut = 8;
constexpr int kShadow = 32;
constexpr int kHaloStyle = 256;
constexpr int kCapitals = 512;
constexpr int kExpanded = 1024;

// Families that take a missing one's place, the best first.
struct Substitute {
  const char* name;
  const char* families[3];
};
constexpr Substitute kSubstitutes[] = {
    {"Tahoma", {"DejaVu Sans Condensed", "DejaVu Sans", ""}},
    {"Verdana", {"DejaVu Sans", "", ""}},
    {"Arial", {"Liberation Sans", "DejaVu Sans Condensed", "DejaVu Sans"}},
    {"Arial Narrow", {"Liberation Sans Narrow", "DejaVu Sans Condensed", "DejaVu Sans"}},
    {"MS Sans Serif", {"Liberation Sans", "DejaVu Sans Condensed", "DejaVu Sans"}},
    {"Times New Roman", {"Liberation Serif", "DejaVu Serif Condensed", "DejaVu Serif"}},
    {"Georgia", {"DejaVu Serif", "", ""}},
    {"Courier New", {"Liberation Mono", "DejaVu Sans Mono", ""}},
};

}  // namespace

bool isInstalled(const std::string& name) {
  return !name.empty() && QFontDatabase::families().contains(QString::fromStdString(name), Qt::CaseInsensitive);
}

QString installedFamily(const std::string& name) {
  if (isInstalled(name)) return QString::fromStdString(name);
  const QString wanted = QString::fromStdString(name);
  for (const Substitute& substitute : kSubstitutes) {
    if (wanted.compare(QLatin1String(substitute.name), Qt::CaseInsensitive) != 0) continue;
    for (const char* family : substitute.families) {
      if (isInstalled(family)) return QString::fromLatin1(family);
    }
  }
  return QStringLiteral("DejaVu Sans");
}

QFont toQFont(const Font& font, double pixels) {
  QFont result(installedFamily(font.name));
  const double height = pixels > 0 ? std::min(pixels, kTallest) : std::min(font.size * kPixelsPerPoint, kTallestOwn);
  result.setPixelSize(height > 1 ? static_cast<int>(std::lround(height)) : 1);
  result.setBold(font.style & kBold);
  result.setItalic(font.style & kItalic);
  result.setUnderline(font.style & kUnderline);
  result.setStrikeOut(font.style & kStrikeOut);
  if (font.style & kCapitals) result.setCapitalization(QFont::AllUppercase);
  if (font.style & kExpanded) result.setLetterSpacing(QFont::PercentageSpacing, 120);
  return result;
}

bool hasHalo(const Font& font) { return font.style & kHaloStyle; }

bool hasShadow(const Font& font) { return font.style & kShadow; }

bool hasBox(const Font& font) { return !hasHalo(font) && font.back != kTransparent; }

}  // namespace motor
