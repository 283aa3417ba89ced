#include "motor/drawing/symbols.h"

#include <algorithm>
#include <cmath>

#include "motor/drawing/colours.h"
#include "motor/drawing/fonts.h"
#include "motor/drawing/pens.h"
#include "motor/drawing/symbol_pictures.h"
#include "motor/drawing/symbol_shapes.h"
#include "motor/drawing/turns.h"

namespace motor {

namespace {

constexpr int kDisc = 34;
constexpr int kBold = 1;
constexpr int kBorder = 16;
constexpr int kShadow = 32;
constexpr int kHalo = 256;
constexpr int kActualSize = 4;  // of a picture
constexpr double kMostPoints = 240;
constexpr double kHaloWidth = 4;  // pixels, half of them outside the character
constexpr double kBorderWidth = 2;
constexpr QColor kShadowColour(40, 44, 52, 130);
constexpr QColor kSignEdge(255, 255, 255, 220);
constexpr double kSignEdgeWidth = 1;  // pixels

double pixelsOf(double points) { return std::min(points, kMostPoints) * kPixelsPerPoint; }

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

// A font's character in the middle, on the halo, the border or the shadow that its style asks for.
void paintCharacter(QPainter& painter, const Symbol& symbol, double pixels) {
  Font face;
  face.name = symbol.font;
  face.style = symbol.style & kBold;
  QPainterPath path;
  path.addText(0, 0, toQFont(face, pixels), QString(QChar(symbol.shape & 0xFFFF)));
  path.translate(-path.boundingRect().center());
  if (symbol.style & kShadow) {
    const double shift = std::max(1.0, pixels / 12);
    painter.fillPath(path.translated(shift, shift), kShadowColour);
  }
  if (symbol.style & (kHalo | kBorder)) {
    const QColor edge = symbol.style & kHalo ? Qt::white : Qt::black;
    const double width = symbol.style & kHalo ? kHaloWidth : kBorderWidth;
    painter.strokePath(path, QPen(edge, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
  painter.fillPath(path, toQColor(symbol.colour));
}

void paintPicture(QPainter& painter, const QImage& picture, bool atActualSize, double pixels) {
  QSizeF size = picture.size();
  if (!atActualSize) size *= pixels / std::max(size.width(), size.height());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QRectF(QPointF(-size.width() / 2, -size.height() / 2), size), picture);
}

}  // namespace

void paintSymbol(QPainter& painter, const Symbol& symbol, QPointF at) {
  const double pixels = pixelsOf(symbol.size);
  const QImage picture = symbol.file.empty() ? QImage() : symbolPicture(symbol);
  const bool isCharacter = picture.isNull() && !symbol.font.empty() && isInstalled(symbol.font);
  const bool isOther = !isCharacter && (!symbol.font.empty() || !symbol.file.empty());
  const SymbolShape* shape = symbolShape(isOther ? kDisc : symbol.shape);
  if (!(pixels > 0) || (picture.isNull() && !isCharacter && shape == nullptr)) return;
  painter.save();
  painter.translate(at);
  painter.rotate(-turnOf(symbol.angle));
  if (!picture.isNull()) {
    paintPicture(painter, picture, symbol.style & kActualSize, pixels);
  } else if (isCharacter) {
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
    sized.size = std::max(1, static_cast<int>(std::lround(std::min(points, kMostPoints))));
    return paintSymbol(painter, sized, at);
  }
  const double half = pixelsOf(points) / 2;
  const QTransform place = QTransform::fromTranslate(at.x(), at.y()).rotate(-turnOf(symbol.angle)).scale(half, half);
  painter.setPen(QPen(kSignEdge, kSignEdgeWidth));
  painter.setBrush(toQColor(symbol.colour));
  painter.drawPath(place.map(symbolPath(*shape)));
}

}  // namespace motor
