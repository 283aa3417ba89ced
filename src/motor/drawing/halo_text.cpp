#include "motor/drawing/halo_text.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "motor/drawing/colours.h"
#include "motor/drawing/fonts.h"

namespace motor {

namespace {

constexpr int kLight = 140;  // of 255: the grey from which on letters count as light
constexpr int kFaint = 200;  // of 255: the opacity of a halo nobody asked for
constexpr double kFaintWidth = 2.5;
constexpr double kFullWidth = 4;

QColor haloColour(const Font& font) {
  if (hasHalo(font)) return font.back == kTransparent ? QColor(Qt::white) : toQColor(font.back);
  QColor colour = qGray(toQColor(font.fore).rgb()) >= kLight ? QColor(30, 40, 60) : QColor(Qt::white);
  colour.setAlpha(kFaint);
  return colour;
}

double lineLeft(Qt::Alignment alignment, double room) {
  if (alignment & Qt::AlignHCenter) return room / 2;
  return alignment & Qt::AlignRight ? room : 0;
}

}  // namespace

HaloText::HaloText(QStringList lines, const Font& font, double pixels)
    : lines_(std::move(lines)),
      font_(toQFont(font, pixels)),
      fore_(toQColor(font.fore)),
      halo_(haloColour(font)),
      haloWidth_(hasHalo(font) ? kFullWidth : kFaintWidth) {
  const QFontMetricsF metrics(font_);
  lineHeight_ = metrics.ascent() + metrics.descent();
  double width = 0;
  for (const QString& line : lines_) width = std::max(width, metrics.horizontalAdvance(line));
  size_ = {width, lineHeight_ * static_cast<double>(lines_.size())};
}

void HaloText::paint(QPainter& painter, QPointF corner, Qt::Alignment alignment) const {
  const QFontMetricsF metrics(font_);
  painter.setFont(font_);
  QPainterPath outline;
  QList<QPointF> starts;
  for (qsizetype i = 0; i < lines_.size(); ++i) {
    const double room = size_.width() - metrics.horizontalAdvance(lines_[i]);
    // Whole pixels keep the letters sharp.
    const QPointF start(std::round(corner.x() + lineLeft(alignment, room)),
                        std::round(corner.y() + static_cast<double>(i) * lineHeight_ + metrics.ascent()));
    starts.append(start);
    outline.addText(start, font_, lines_[i]);
  }
  painter.strokePath(outline, QPen(halo_, haloWidth_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setPen(fore_);
  for (qsizetype i = 0; i < lines_.size(); ++i) painter.drawText(starts[i], lines_[i]);
}

}  // namespace motor
