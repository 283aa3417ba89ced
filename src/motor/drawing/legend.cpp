#include "motor/drawing/legend.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <optional>

#include "motor/drawing/brushes.h"
#include "motor/drawing/fonts.h"
#include "motor/drawing/pens.h"
#include "motor/drawing/shape_painter.h"
#include "motor/drawing/symbols.h"
#include "motor/drawing/theme_styles.h"

namespace motor {

namespace {

constexpr int kMargin = 10;
constexpr int kSwatchWidth = 26;
constexpr int kSwatchHeight = 14;
constexpr int kSwatchGap = 8;
constexpr int kLineHeight = 22;
constexpr int kLeastWidth = 120;
constexpr QColor kInk(40, 44, 52);

QFont legendFont() {
  Font font;
  font.name = "Tahoma";
  font.size = 8.25;
  return toQFont(font);
}

// The object that stands for a layer: the first one of its table.
ObjectPtr sampleOf(const Table& table) {
  for (RowId row = 1; row <= table.rowCount(); ++row) {
    if (!table.isDeleted(row) && table.object(row)) return table.object(row);
  }
  return nullptr;
}

struct Entry {
  QString name;
  MapObject::Kind kind;
  std::optional<DrawnStyle> style;  // none for a theme's heading
};

QString nameOf(const ThemeClass& theme) {
  const std::string name = theme.minimum.toText() + (theme.maximum.isEmpty() ? "" : " - " + theme.maximum.toText());
  return QString::fromStdString(name).replace('.', ',');
}

void addTheme(const Layer& layer, const MapObject& sample, std::vector<Entry>& entries) {
  entries.push_back({QString::fromStdString(layer.name), sample.kind, std::nullopt});
  const ThemeStyles theme(layer);
  for (const ThemeClass& themeClass : theme.classes()) {
    entries.push_back({nameOf(themeClass), sample.kind, styleWith(themeClass.styles, sample)});
  }
}

std::vector<Entry> entriesOf(const Map& map) {
  std::vector<Entry> entries;
  for (const Layer& layer : map.layers) {
    if (layer.display == Display::off || !layer.table) continue;
    const ObjectPtr sample = sampleOf(*layer.table);
    if (sample == nullptr) continue;
    if (layer.theme) {
      addTheme(layer, *sample, entries);
    } else {
      entries.push_back({QString::fromStdString(layer.name), sample->kind, styleIn(layer, *sample)});
    }
  }
  return entries;
}

void paintSwatch(QPainter& painter, MapObject::Kind kind, const DrawnStyle& style, const QRectF& box,
                 double devicePixelRatio) {
  const QPolygonF line{QPointF(box.left(), box.bottom() - 2), QPointF(box.left() + 9, box.top() + 3),
                       QPointF(box.right() - 9, box.bottom() - 3), QPointF(box.right(), box.top() + 2)};
  switch (kind) {
    case MapObject::Kind::region:
      painter.setPen(Qt::NoPen);
      painter.setBrush(toQBrush(style.brush, devicePixelRatio));
      painter.drawRect(box);
      painter.setBrush(Qt::NoBrush);
      for (const QPen& stroke : penStrokes(style.pen)) {
        painter.setPen(stroke);
        painter.drawRect(box);
      }
      break;
    case MapObject::Kind::polyline:
      painter.setBrush(Qt::NoBrush);
      for (const QPen& stroke : penStrokes(style.pen)) {
        painter.setPen(stroke);
        painter.drawPolyline(line);
      }
      break;
    case MapObject::Kind::point: {
      Symbol symbol = style.symbol;
      symbol.size = std::min(symbol.size, static_cast<int>(kSwatchHeight / kPixelsPerPoint));
      paintSymbol(painter, symbol, box.center());
      break;
    }
    case MapObject::Kind::text:
      painter.setPen(kInk);
      painter.drawText(box, Qt::AlignCenter, QStringLiteral("Aa"));
      break;
  }
}

}  // namespace

QSize legendSize(const Map& map) {
  const QFontMetricsF metrics(legendFont());
  const std::vector<Entry> entries = entriesOf(map);
  double text = 0;
  for (const Entry& entry : entries) text = std::max(text, metrics.horizontalAdvance(entry.name));
  const int width = 2 * kMargin + kSwatchWidth + kSwatchGap + static_cast<int>(std::ceil(text));
  return {std::max(width, kLeastWidth), 2 * kMargin + kLineHeight * std::max(1, static_cast<int>(entries.size()))};
}

void paintLegend(QPainter& painter, const Map& map, double devicePixelRatio) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(legendFont());
  const double width = legendSize(map).width();
  double top = kMargin;
  for (const Entry& entry : entriesOf(map)) {
    const QRectF swatch(kMargin + 0.5, std::floor(top + (kLineHeight - kSwatchHeight) / 2.0) + 0.5, kSwatchWidth - 1,
                        kSwatchHeight - 1);
    if (entry.style) paintSwatch(painter, entry.kind, *entry.style, swatch, devicePixelRatio);
    const double left = entry.style ? kMargin + kSwatchWidth + kSwatchGap : kMargin;
    painter.setPen(kInk);
    painter.drawText(QRectF(left, top, width - left, kLineHeight), Qt::AlignVCenter | Qt::AlignLeft, entry.name);
    top += kLineHeight;
  }
}

QImage renderLegend(const Map& map, double devicePixelRatio) {
  QImage image((QSizeF(legendSize(map)) * devicePixelRatio).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(devicePixelRatio);
  image.fill(Qt::white);
  QPainter painter(&image);
  paintLegend(painter, map, devicePixelRatio);
  return image;
}

}  // namespace motor
