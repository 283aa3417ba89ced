#include "motor/drawing/legend.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "motor/drawing/colours.h"
#include "motor/drawing/fonts.h"
#include "motor/drawing/pens.h"
#include "motor/drawing/wrapped_text.h"

namespace motor {

namespace {

constexpr double kMargin = 12;
constexpr double kSwatchGap = 8;    // between swatch and text
constexpr double kLineGap = 7;      // between two lines
constexpr double kHeadingGap = 8;   // between titles and lines
constexpr double kTitleGap = 2;     // between title and subtitle
constexpr double kSectionGap = 16;  // between two themes
constexpr double kWidestText = 340;
constexpr double kWidestWord = 900;
constexpr double kMostPoints = 36;
constexpr int kMostPixels = 32'000;  // of a picture, which the painter reaches
constexpr int kLeastWidth = 140;
constexpr QColor kCount(90, 98, 112);

QStringList wrapped(const QString& text, const QFontMetricsF& metrics) {
  return wrappedText(text, metrics, kWidestText, kWidestWord);
}

// A legend is read beside its map, however large its letters are wanted.
QFont lettersOf(Font font) {
  font.size = std::min(font.size, kMostPoints);
  return toQFont(font);
}

double lineHeight(const QFontMetricsF& metrics) { return metrics.ascent() + metrics.descent(); }

// On the middles of pixels, so that one pixel's lines are sharp.
QRectF onPixels(const QRectF& box) {
  return {QPointF(std::floor(box.left()) + 0.5, std::floor(box.top()) + 0.5),
          QPointF(std::floor(box.right()) - 0.5, std::floor(box.bottom()) - 0.5)};
}

double heightOf(const QString& text, const QFont& font) {
  const QFontMetricsF metrics(font);
  return lineHeight(metrics) * static_cast<double>(wrapped(text, metrics).size());
}

}  // namespace

Legend::Legend(const std::vector<LegendSection>& sections) {
  double bottom = kMargin;
  for (const LegendSection& section : sections) {
    if (bottom > kMargin) bottom += kSectionGap;
    const double top = bottom;
    bottom = placeHeading(section, bottom);
    bottom = placeLines(section, bottom);
    if (section.border && isVisible(*section.border)) borders_.push_back({*section.border, top, bottom});
  }
  size_ = {std::max(static_cast<int>(std::ceil(right_ + kMargin)), kLeastWidth),
           static_cast<int>(std::ceil(bottom + kMargin))};
}

double Legend::place(const QString& text, const QFont& font, const QColor& colour, QPointF corner) {
  const QFontMetricsF metrics(font);
  double top = corner.y();
  for (const QString& line : wrapped(text, metrics)) {
    // Whole pixels keep the letters sharp.
    texts_.push_back({line, font, colour, {corner.x(), std::round(top + metrics.ascent())}});
    right_ = std::max(right_, corner.x() + metrics.horizontalAdvance(line));
    top += lineHeight(metrics);
  }
  return top;
}

double Legend::placeHeading(const LegendSection& section, double top) {
  double bottom = top;
  const auto placeTitle = [&](const QString& title, const Font& font) {
    if (title.isEmpty()) return;
    if (bottom > top) bottom += kTitleGap;
    bottom = place(title, lettersOf(font), toQColor(font.fore), {kMargin, bottom});
  };
  placeTitle(section.title, section.titleFont);
  placeTitle(section.subtitle, section.subtitleFont);
  return bottom > top && !section.lines.empty() ? bottom + kHeadingGap : bottom;
}

void Legend::placeLine(const LegendLine& line, const Font& font, double swatchWidth, double top, double height) {
  if (line.swatch.kind != LegendSwatch::Kind::none)
    swatches_.push_back({line.swatch, QRectF(kMargin, top, swatchWidth, height)});
  const QFont letters = lettersOf(font);
  const double left = kMargin + (swatchWidth > 0 ? swatchWidth + kSwatchGap : 0);
  place(line.text, letters, toQColor(font.fore), {left, top + (height - heightOf(line.text, letters)) / 2});
  if (!line.count) return;
  const PlacedText last = texts_.back();
  const QFontMetricsF metrics(letters);
  const QString count = QStringLiteral("  (%1)").arg(*line.count);
  const double start = last.start.x() + metrics.horizontalAdvance(last.text);
  texts_.push_back({count, letters, kCount, {start, last.start.y()}});
  right_ = std::max(right_, start + metrics.horizontalAdvance(count));
}

double Legend::placeLines(const LegendSection& section, double top) {
  double swatchWidth = 0;
  for (const LegendLine& line : section.lines) swatchWidth = std::max(swatchWidth, swatchSize(line.swatch).width());
  double bottom = top;
  for (const LegendLine& line : section.lines) {
    if (bottom > top) bottom += kLineGap;
    const double height = std::max(heightOf(line.text, lettersOf(section.lineFont)), swatchSize(line.swatch).height());
    placeLine(line, section.lineFont, swatchWidth, bottom, height);
    bottom += height;
  }
  return bottom;
}

// All borders are as wide as the legend, half-way into the room around its sections.
void Legend::paintBorder(QPainter& painter, const PlacedBorder& border) const {
  const QRectF box(QPointF(kMargin, border.top), QPointF(size_.width() - kMargin, border.bottom));
  const QRectF around = box.adjusted(-kMargin / 2, -kMargin / 2, kMargin / 2, kMargin / 2);
  painter.setBrush(Qt::NoBrush);
  for (const QPen& stroke : penStrokes(border.pen)) {
    painter.setPen(stroke);
    painter.drawRect(onPixels(around));
  }
}

void Legend::paint(QPainter& painter, double devicePixelRatio) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (const PlacedBorder& border : borders_) paintBorder(painter, border);
  for (const PlacedSwatch& placed : swatches_) paintSwatch(painter, placed.swatch, placed.box, devicePixelRatio);
  for (const PlacedText& placed : texts_) {
    painter.setFont(placed.font);
    painter.setPen(placed.colour);
    painter.drawText(placed.start, placed.text);
  }
  painter.restore();
}

QImage renderLegend(const Map& map, double devicePixelRatio) {
  Themes themes;
  const Legend legend(legendSections(map, themes));
  const QSize pixels = (QSizeF(legend.size()) * devicePixelRatio).toSize().boundedTo({kMostPixels, kMostPixels});
  QImage image(pixels, QImage::Format_RGB32);
  image.setDevicePixelRatio(devicePixelRatio);
  image.fill(Qt::white);
  QPainter painter(&image);
  legend.paint(painter, devicePixelRatio);
  return image;
}

}  // namespace motor
