#include "motor/drawing/halo_text.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "motor/drawing/colours.h"
#include "motor/drawing/fonts.h"

namespace motor {

namespace {

constexpr int kLight = 140;  // of 255: the grey from which on letters count as light
constexpr int kFaint = 200;  // of 255: the opacity of a halo nobody asked for
constexpr double kFaintWidth = 2.5;
constexpr double kFullWidth = 3.5;
constexpr double kBoxRoom = 3;      // pixels left and right of the letters in their box
constexpr double kShadowShift = 1;  // pixels
constexpr QColor kShadow(40, 44, 52, 130);
constexpr qsizetype kMostLines = 64;
constexpr qsizetype kMostLetters = 1000;

QColor haloColour(const Font& font) {
  if (hasHalo(font)) return font.back == kTransparent ? QColor(Qt::white) : toQColor(font.back);
  QColor colour = qGray(toQColor(font.fore).rgb()) >= kLight ? QColor(30, 40, 60) : QColor(Qt::white);
  colour.setAlpha(kFaint);
  return colour;
}

// What a map has room for.
QStringList bounded(const QStringList& lines) {
  const QChar ellipsis(0x2026);
  QStringList result;
  qsizetype left = kMostLetters;
  for (const QString& line : lines) {
    const bool isLast = result.size() == kMostLines || line.size() > left;
    result.append(isLast ? line.left(left) + ellipsis : line);
    if (isLast) break;
    left -= line.size();
  }
  return result;
}

double lineLeft(Qt::Alignment alignment, double room) {
  if (alignment & Qt::AlignHCenter) return room / 2;
  return alignment & Qt::AlignRight ? room : 0;
}

}  // namespace

HaloText::HaloText(const QStringList& lines, const Font& font, double pixels, double spacing)
    : lines_(bounded(lines)),
      font_(toQFont(font, pixels)),
      fore_(toQColor(font.fore)),
      halo_(haloColour(font)),
      haloWidth_(hasHalo(font) ? kFullWidth : kFaintWidth) {
  if (hasBox(font)) box_ = toQColor(font.back);
  if (hasShadow(font)) shadow_ = kShadow;
  const QFontMetricsF metrics(font_);
  const double lineHeight = metrics.ascent() + metrics.descent();
  lineStep_ = lineHeight * spacing;
  double width = 0;
  for (const QString& line : lines_) width = std::max(width, metrics.horizontalAdvance(line));
  size_ = {width, lineHeight + lineStep_ * static_cast<double>(lines_.size() - 1)};
  if (box_.isValid()) size_ += QSizeF(2 * kBoxRoom, 0);
}

// The starts of the lines on their baselines.
QList<QPointF> HaloText::starts(QPointF corner, Qt::Alignment alignment) const {
  const QFontMetricsF metrics(font_);
  const double edge = box_.isValid() ? kBoxRoom : 0;
  QList<QPointF> starts;
  for (qsizetype i = 0; i < lines_.size(); ++i) {
    const double room = size_.width() - 2 * edge - metrics.horizontalAdvance(lines_[i]);
    // Whole pixels keep the letters sharp.
    starts.append({std::round(corner.x() + edge + lineLeft(alignment, room)),
                   std::round(corner.y() + static_cast<double>(i) * lineStep_ + metrics.ascent())});
  }
  return starts;
}

// What lies below the letters ends in one path around them, from which others learn where a text stands.
void HaloText::paintGround(QPainter& painter, QPointF corner, const QPainterPath& outline) const {
  if (shadow_.isValid() && !box_.isValid()) {
    painter.fillPath(outline.translated(kShadowShift, kShadowShift), shadow_);
  }
  if (box_.isValid()) {
    QPainterPath box;
    box.addRect(QRectF(corner, size_));
    if (shadow_.isValid()) painter.fillPath(box.translated(2 * kShadowShift, 2 * kShadowShift), shadow_);
    painter.fillPath(box, box_);
  } else {
    painter.strokePath(outline, QPen(halo_, haloWidth_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
}

void HaloText::paint(QPainter& painter, QPointF corner, Qt::Alignment alignment) const {
  const QList<QPointF> at = starts(corner, alignment);
  QPainterPath outline;
  if (!box_.isValid()) {
    for (qsizetype i = 0; i < lines_.size(); ++i) outline.addText(at[i], font_, lines_[i]);
  }
  paintGround(painter, corner, outline);
  painter.setFont(font_);
  painter.setPen(fore_);
  for (qsizetype i = 0; i < lines_.size(); ++i) painter.drawText(at[i], lines_[i]);
}

}  // namespace motor
