#include "motor/window/overlays/plate.h"

#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>
#include <cmath>

#include "motor/window/lettering.h"

namespace motor {

namespace {

constexpr double kPadding = 9;
constexpr double kRound = 5;
constexpr double kColumnGap = 18;
constexpr double kHintGap = 5;
constexpr double kLineGap = 2;
constexpr QPointF kBesidePointer(14, 18);
constexpr double kFromEdge = 4;
constexpr QColor kLight(255, 255, 255, 244);
constexpr QColor kLightEdge(70, 76, 84, 80);
constexpr QColor kDark(28, 38, 56, 232);

QFont fontOf(double points, bool bold) { return lettering("Tahoma", points, bold); }

// The baseline of a line of text whose top is there, on a whole pixel.
double baseline(const QFontMetricsF& metrics, double top) { return std::round(top + metrics.ascent()); }

double widthOf(const QFontMetricsF& metrics, const QStringList& texts) {
  double width = 0;
  for (const QString& text : texts) width = std::max(width, metrics.horizontalAdvance(text));
  return width;
}

void paintPlate(QPainter& painter, const QRectF& plate, const QColor& ground, const QColor& edge) {
  painter.setPen(edge.alpha() > 0 ? QPen(edge, 1) : QPen(Qt::NoPen));
  painter.setBrush(ground);
  painter.drawRoundedRect(plate.adjusted(0.5, 0.5, -0.5, -0.5), kRound, kRound);
}

}  // namespace

QRectF paintReadings(QPainter& painter, QPointF corner, const std::vector<Reading>& readings, const QString& hint) {
  if (readings.empty() && hint.isEmpty()) return {};
  const QFont names = fontOf(8, false);
  const QFont values = fontOf(9, true);
  const QFont small = fontOf(7.5, false);
  const QFontMetricsF nameMetrics(names);
  const QFontMetricsF valueMetrics(values);
  const QFontMetricsF hintMetrics(small);
  QStringList first;
  QStringList second;
  for (const Reading& reading : readings) {
    first << reading.name;
    second << reading.value;
  }
  const double line = std::ceil(valueMetrics.height()) + kLineGap;
  const double figures =
      readings.empty() ? 0 : widthOf(nameMetrics, first) + kColumnGap + widthOf(valueMetrics, second);
  const double width = std::ceil(std::max(figures, hintMetrics.horizontalAdvance(hint))) + 2 * kPadding;
  double height = 2 * kPadding + line * static_cast<double>(readings.size()) - (readings.empty() ? 0 : kLineGap);
  if (!hint.isEmpty()) height += std::ceil(hintMetrics.height()) + (readings.empty() ? 0 : kHintGap);

  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF plate(std::floor(corner.x()), std::floor(corner.y()), width, std::ceil(height));
  paintPlate(painter, plate, kLight, kLightEdge);
  double top = plate.top() + kPadding;
  for (const Reading& reading : readings) {
    const double base = baseline(valueMetrics, top);
    painter.setFont(names);
    painter.setPen(kMuted);
    painter.drawText(QPointF(plate.left() + kPadding, base), reading.name);
    painter.setFont(values);
    painter.setPen(kInk);
    painter.drawText(QPointF(plate.right() - kPadding - valueMetrics.horizontalAdvance(reading.value), base),
                     reading.value);
    top += line;
  }
  if (!hint.isEmpty()) {
    if (!readings.empty()) top += kHintGap - kLineGap;
    painter.setFont(small);
    painter.setPen(kMuted);
    painter.drawText(QPointF(plate.left() + kPadding, baseline(hintMetrics, top)), hint);
  }
  painter.restore();
  return plate;
}

QRectF paintNote(QPainter& painter, QPointF near, const QRectF& window, const QStringList& lines) {
  if (lines.isEmpty()) return {};
  const QFont bold = fontOf(8.5, true);
  const QFont plain = fontOf(8, false);
  const QFontMetricsF boldMetrics(bold);
  const QFontMetricsF plainMetrics(plain);
  const double rest = static_cast<double>(lines.size() - 1);
  const double width = std::max(widthOf(boldMetrics, lines.mid(0, 1)), widthOf(plainMetrics, lines.mid(1)));
  const QSizeF size(std::ceil(width) + 2 * kPadding,
                    std::ceil(boldMetrics.height() + rest * (plainMetrics.height() + kLineGap)) + kPadding);
  QPointF corner = near + kBesidePointer;
  const QRectF room = window.adjusted(kFromEdge, kFromEdge, -kFromEdge, -kFromEdge);
  if (corner.x() + size.width() > room.right()) corner.setX(near.x() - kBesidePointer.x() / 2 - size.width());
  if (corner.y() + size.height() > room.bottom()) corner.setY(near.y() - kBesidePointer.y() / 2 - size.height());
  corner = {std::round(std::max(corner.x(), room.left())), std::round(std::max(corner.y(), room.top()))};

  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF plate(corner, size);
  paintPlate(painter, plate, kDark, Qt::transparent);
  painter.setPen(Qt::white);
  double top = plate.top() + kPadding / 2;
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const QFontMetricsF& metrics = i == 0 ? boldMetrics : plainMetrics;
    painter.setFont(i == 0 ? bold : plain);
    painter.drawText(QPointF(plate.left() + kPadding, baseline(metrics, top)), lines[i]);
    top += metrics.height() + kLineGap;
  }
  painter.restore();
  return plate;
}

}  // namespace motor
