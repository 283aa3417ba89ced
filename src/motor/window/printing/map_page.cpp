#include "motor/window/printing/map_page.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "motor/drawing/scale_bar.h"
#include "motor/drawing/wrapped_text.h"
#include "motor/session/ground_distance.h"
#include "motor/window/lettering.h"
#include "motor/window/printing/north_arrow.h"
#include "text/spanish_number.h"

namespace motor {

namespace {

constexpr double kGap = 14;  // between the parts
constexpr double kLineGap = 3;
constexpr double kFooterGap = 5;  // below its rule
constexpr double kScaleBarPixels = 150;
constexpr double kInset = 12;  // of what lies in the map's corners
constexpr double kNorthRadius = 24;
constexpr double kMostLegend = 0.42;  // of the page's width or height
constexpr double kMetresPerPixel = 0.0254 / 96;
constexpr int kRatioDigits = 3;
constexpr QColor kRule(150, 158, 170);

QFont fontOf(double points, bool bold) { return lettering("Verdana", points, bold); }
QFont titleFont() { return fontOf(15, true); }
QFont subtitleFont() { return fontOf(11, false); }
QFont footerFont() { return fontOf(7.5, false); }

double heightOf(const QFont& font) { return std::ceil(QFontMetricsF(font).height()); }

// A text on one line, with an ellipsis where it is too long; its top left or, from the right, top right at `corner`.
void paintLine(QPainter& painter, const QFont& font, const QColor& colour, const QString& text, QPointF corner,
               double room, Qt::Alignment alignment) {
  const QFontMetricsF metrics(font);
  const QString shown = metrics.elidedText(text, Qt::ElideRight, room);
  const double left = alignment == Qt::AlignRight ? corner.x() - metrics.horizontalAdvance(shown) : corner.x();
  painter.setFont(font);
  painter.setPen(colour);
  painter.drawText(QPointF(left, corner.y() + metrics.ascent()), shown);
}

// A heading in as many lines as the page's width asks for.
QStringList headingLines(const QString& text, const QFont& font, double room) {
  return wrappedText(text, QFontMetricsF(font), room, room);
}

double headingHeight(const QString& text, const QFont& font, double room) {
  return text.isEmpty() ? 0 : heightOf(font) * static_cast<double>(headingLines(text, font, room).size());
}

// From `top` on; gives the bottom.
double paintHeading(QPainter& painter, const QString& text, const QFont& font, const QColor& colour, double top,
                    double room) {
  if (text.isEmpty()) return top;
  for (const QString& line : headingLines(text, font, room)) {
    paintLine(painter, font, colour, line, {0, top}, room, Qt::AlignLeft);
    top += heightOf(font);
  }
  return top;
}

QString ratioText(double ratio) {
  const double unit = std::pow(10, std::max(0.0, std::floor(std::log10(ratio)) + 1 - kRatioDigits));
  return QStringLiteral("Escala 1:") + QString::fromStdString(text::spanishNumber(std::round(ratio / unit) * unit, 0));
}

Legend legendOf(const Map& map) {
  Themes themes;
  return Legend(legendSections(map, themes));
}

}  // namespace

MapPage::MapPage(Map map, PageTexts texts, PageParts parts, std::shared_ptr<MapPainter> painter)
    : map_(std::move(map)),
      texts_(std::move(texts)),
      parts_(parts),
      legend_(legendOf(map_)),
      hasLegend_(parts.legend && hasTheme(map_)),
      painter_(std::move(painter)) {}

QSizeF MapPage::mapSizeIn(QSizeF room) const {
  const QSizeF window(std::max(1, map_.pixelWidth), std::max(1, map_.pixelHeight));
  const bool fits = window.width() <= room.width() && window.height() <= room.height();
  return parts_.asOnScreen && fits ? window : window.scaled(room, Qt::KeepAspectRatio);
}

void MapPage::placeBeside(Layout& layout, const QRectF& body) const {
  const QSizeF size(legend_.size());
  layout.legendScale = std::min({1.0, body.width() * kMostLegend / size.width(), body.height() / size.height()});
  const QSizeF legend = size * layout.legendScale;
  const QSizeF map = mapSizeIn({body.width() - legend.width() - kGap, body.height()});
  const double left = body.left() + (body.width() - map.width() - kGap - legend.width()) / 2;
  layout.map = QRectF(QPointF(left, body.top()), map);
  layout.legend = QRectF(QPointF(layout.map.right() + kGap, body.top()), legend);
}

void MapPage::placeBelow(Layout& layout, const QRectF& body) const {
  const QSizeF size(legend_.size());
  layout.legendScale = std::min({1.0, body.height() * kMostLegend / size.height(), body.width() / size.width()});
  const QSizeF legend = size * layout.legendScale;
  const QSizeF map = mapSizeIn({body.width(), body.height() - legend.height() - kGap});
  layout.map = QRectF(QPointF(body.left() + (body.width() - map.width()) / 2, body.top()), map);
  layout.legend = QRectF(QPointF(layout.map.left(), layout.map.bottom() + kGap), legend);
}

MapPage::Layout MapPage::layoutFor(QSizeF page) const {
  Layout layout;
  double top = headingHeight(texts_.title, titleFont(), page.width());
  if (!texts_.subtitle.isEmpty()) {
    top += (top > 0 ? kLineGap : 0) + headingHeight(texts_.subtitle, subtitleFont(), page.width());
  }
  layout.title = QRectF(0, 0, page.width(), top);
  const double footer = heightOf(footerFont()) + kFooterGap;
  layout.footer = QRectF(0, page.height() - footer, page.width(), footer);
  const double bodyTop = top > 0 ? top + kGap : 0;
  const QRectF body(0, bodyTop, page.width(), std::max(1.0, layout.footer.top() - kGap - bodyTop));
  if (hasLegend_) {
    Layout below = layout;
    placeBeside(layout, body);
    placeBelow(below, body);
    if (below.map.width() > layout.map.width()) layout = below;
  } else {
    const QSizeF map = mapSizeIn(body.size());
    layout.map = QRectF(QPointF((page.width() - map.width()) / 2, body.top()), map);
  }
  layout.ratio = map_.zoomMetres / (layout.map.width() * kMetresPerPixel);
  return layout;
}

void MapPage::paint(QPainter& painter, QSizeF page, double devicePixelRatio) const {
  const Layout layout = layoutFor(page);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  paintTexts(painter, layout);
  paintMap(painter, layout, devicePixelRatio);
  if (!layout.legend.isEmpty()) {
    painter.save();
    painter.translate(layout.legend.topLeft());
    painter.scale(layout.legendScale, layout.legendScale);
    legend_.paint(painter, devicePixelRatio * layout.legendScale);
    painter.restore();
  }
  painter.restore();
}

void MapPage::paintTexts(QPainter& painter, const Layout& layout) const {
  const double room = layout.title.width();
  const double top = paintHeading(painter, texts_.title, titleFont(), kInk, 0, room);
  paintHeading(painter, texts_.subtitle, subtitleFont(), kMuted, top > 0 ? top + kLineGap : 0, room);
  painter.setPen(QPen(kRule, 0.7));
  painter.drawLine(layout.footer.topLeft(), layout.footer.topRight());
  const double foot = layout.footer.top() + kFooterGap;
  const QFontMetricsF metrics(footerFont());
  const QString right = (parts_.scaleBar ? ratioText(layout.ratio) : QString()) +
                        (parts_.scaleBar && !texts_.date.isEmpty() ? QStringLiteral("   ·   ") : QString()) +
                        texts_.date;
  paintLine(painter, footerFont(), kMuted, right, {layout.footer.right(), foot}, room, Qt::AlignRight);
  paintLine(painter, footerFont(), kMuted, texts_.source, {0, foot}, room - metrics.horizontalAdvance(right) - kGap,
            Qt::AlignLeft);
}

void MapPage::paintMap(QPainter& painter, const Layout& layout, double devicePixelRatio) const {
  const QSizeF size = layout.map.size();
  const QRectF sheet(QPointF(0, 0), size);
  const ScaleBar bar = scaleBarFor(map_.zoomMetres / size.width(), std::min(kScaleBarPixels, size.width() / 3));
  const QPointF barCorner(kInset, size.height() - kInset);
  const QPointF north(size.width() - kInset - kNorthRadius / 2, kInset + kNorthRadius);
  std::vector<QRectF> withoutLabels;
  if (parts_.scaleBar) withoutLabels.push_back(scaleBarPlate(bar, barCorner));
  if (parts_.northArrow) {
    withoutLabels.emplace_back(north - QPointF(kNorthRadius, kNorthRadius), QSizeF(2, 2) * kNorthRadius);
  }
  painter.save();
  painter.translate(layout.map.topLeft());
  painter.save();
  painter.setClipRect(sheet);
  painter_->keepLabelsOff(std::move(withoutLabels));
  painter_->paint(painter, map_, size, devicePixelRatio, Quality::best);
  painter.restore();
  if (parts_.scaleBar) paintScaleBar(painter, bar, barCorner);
  if (parts_.northArrow) {
    paintNorthArrow(painter, north, GroundDistance(map_.coordinateSystem).northAt(map_.centre));
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(kRule, 0.8));
  painter.drawRect(sheet);
  painter.restore();
}

}  // namespace motor
