#include "motor/drawing/symbol_pictures.h"

#include <QCache>
#include <QImageReader>

#include "motor/drawing/colours.h"

namespace motor {

namespace {

constexpr int kShowsBackground = 1;
constexpr int kAppliesColour = 2;
constexpr int kMostPixels = 512;
constexpr int kKeptPictures = 64;
constexpr QRgb kBackground = qRgb(255, 255, 255);

QImage pictureNamed(const QString& name) {
  if (name.contains('/') || name.contains('\\') || name.contains(':')) return {};
  QImageReader reader(QString::fromLatin1(kSymbolFolders) + ':' + name);
  const QSize size = reader.size();
  if (!size.isValid() || size.width() > kMostPixels || size.height() > kMostPixels) return {};
  return reader.read().convertToFormat(QImage::Format_ARGB32);
}

// From white to black the colour comes out.
QRgb coloured(QRgb pixel, const QColor& colour) {
  const int grey = qGray(pixel);
  const auto mixed = [grey](int channel) { return channel + (255 - channel) * grey / 255; };
  return qRgba(mixed(colour.red()), mixed(colour.green()), mixed(colour.blue()), qAlpha(pixel));
}

QImage inStyle(QImage picture, const Symbol& symbol) {
  const QColor colour = toQColor(symbol.colour);
  for (int y = 0; y < picture.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (int x = 0; x < picture.width(); ++x) {
      if (line[x] == kBackground && !(symbol.style & kShowsBackground)) {
        line[x] = qRgba(255, 255, 255, 0);
      } else if (symbol.style & kAppliesColour && line[x] != kBackground) {
        line[x] = coloured(line[x], colour);
      }
    }
  }
  return picture;
}

}  // namespace

QImage symbolPicture(const Symbol& symbol) {
  // Read once: a layer of points asks for the same few pictures thousands of times. The toolkit paints on one thread.
  static QCache<QString, QImage> kept(kKeptPictures);
  const QString name = QString::fromStdString(symbol.file);
  const QString key = QStringLiteral("%1|%2|%3").arg(name).arg(symbol.colour).arg(symbol.style);
  if (const QImage* known = kept.object(key)) return *known;
  const QImage picture = pictureNamed(name);
  if (picture.isNull()) return {};
  auto* styled = new QImage(inStyle(picture, symbol));
  const QImage result = *styled;
  kept.insert(key, styled);  // which deletes it
  return result;
}

}  // namespace motor
