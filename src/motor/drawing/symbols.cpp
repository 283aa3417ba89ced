#include "motor/drawing/symbols.h"

#include <algorithm>
#include <cmath>

#include "motor/drawing/colours.h"
#include "motor/drawing/fonts.h"
#include "motor/drawing/pens.h"
#include "motor/drawing/symbol_shapes.h"

namespace motor {

namespace {

constexpr int kDisc = 34;
constexpr int kBold = 1;
constexpr int kBorder = 16;
constexpr int kHalo = 256;
constexpr QColor kSignEdge(255, 255, 255, 220);
constexpr double kSignEdgeWidth = 1;  // pixels

void paintShape(QPainter& painter, const SymbolShape& shape, const QColor& colour, double pixels) {
  const double half = pixels / 2;
  const QPainterPath path = QTransform::fromScale(half, half).map(symbolPath(shape));
  if (shape.filled) {
    painter.fillPath(path, colour);
  } else {
    const QPen pen(colour, std::max(1.0, pixels / 9), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    painter.strokePath(path, pen);
  }
}

void paintCharacter(QPainter& painter, const Symbol& symbol, double pixels) {
  Font face;
  face.name = symbol.font;
  face.style = symbol.style & kBold;
  face.size = symbol.size;
  QPainterPath path;
  path.addText(0, 0, toQFont(face, pixels), QString(QChar(symbol.shape)));
  path.translate(-path.boundingRect().center());
  if (symbol.style & (kHalo | kBorder)) {
    const QColor edge = symbol.style & kHalo ? Qt::white : Qt::black;
    painter.strokePath(path, QPen(edge, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
  painter.fillPath(path, toQColor(symbol.colour));
}

}  // namespace

void paintSymbol(QPainter& painter, const Symbol& symbol, QPointF at) {
  const double pixels = symbol.size * kPixelsPerPoint;
  const bool isCharacter = !symbol.font.empty() && isInstalled(symbol.font);
  const bool isOther = !isCharacter && (!symbol.font.empty() || !symbol.file.empty());
  const SymbolShape* shape = symbolShape(isOther ? kDisc : symbol.shape);
  if (pixels <= 0 || (!isCharacter && shape == nullptr)) return;
  painter.save();
  painter.translate(at);
  painter.rotate(-symbol.angle);
  if (isCharacter) {
    paintCharacter(painter, symbol, pixels);
  } else {
    paintShape(painter, *shape, toQColor(symbol.colour), pixels);
  }
  painter.restore();
}

void paintSign(QPainter& painter, const Symbol& symbol, double points, QPointF at) {
  const SymbolShape* shape = symbol.font.empty() && symbol.file.empty() ? symbolShape(symbol.shape) : nullptr;
  if (shape == nullptr || !shape->filled) {
    Symbol sized = symbol;
    sized.size = std::max(1, static_cast<int>(std::lround(points)));
    return paintSymbol(painter, sized, at);
  }
  const double half = points * kPixelsPerPoint / 2;
  const QTransform place = QTransform::fromTranslate(at.x(), at.y()).rotate(-symbol.angle).scale(half, half);
  painter.setPen(QPen(kSignEdge, kSignEdgeWidth));
  painter.setBrush(toQColor(symbol.colour));
  painter.drawPath(place.map(symbolPath(*shape)));
}

}  // namespace motor
