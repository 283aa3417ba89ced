#include "hosts/desktop/pages/reading/page_pictures.h"

#include <QFileInfo>
#include <QImageReader>

namespace desktop::pages {
namespace {

constexpr qint64 kMostBytes = 8 * 1024 * 1024;
constexpr qint64 kMostPixels = 16'000'000;

bool isPageFormat(const QByteArray& format) {
  return format == "png" || format == "jpeg" || format == "jpg" || format == "gif" || format == "bmp";
}

QImage invisible() {
  QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  return image;
}

}  // namespace

QImage pictureIn(const QString& file, double zoom) {
  if (file.isEmpty() || QFileInfo(file).size() > kMostBytes) return invisible();
  QImageReader reader(file);
  reader.setDecideFormatFromContent(true);
  const QSize size = reader.size();
  const bool isSmall = size.isValid() && qint64{size.width()} * size.height() <= kMostPixels;
  if (!isSmall || !isPageFormat(reader.format())) return invisible();
  QImage image = reader.read();
  if (image.isNull()) return invisible();
  image.setDevicePixelRatio(1 / zoom);
  return image;
}

}  // namespace desktop::pages
