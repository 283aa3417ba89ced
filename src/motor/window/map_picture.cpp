#include "motor/window/map_picture.h"

#include <QElapsedTimer>
#include <cmath>

#include "motor/drawing/map_view.h"

namespace motor {

namespace {

constexpr double kFrameMilliseconds = 16;

}  // namespace

void MapPicture::render(const Map& map, const Key& key, Quality quality, const QRectF& withoutLabels) {
  QElapsedTimer timer;
  timer.start();
  const QSize pixels = (QSizeF(key.size) * key.devicePixelRatio).toSize();
  if (image_.size() != pixels) image_ = QImage(pixels, QImage::Format_RGB32);
  image_.setDevicePixelRatio(key.devicePixelRatio);
  image_.fill(Qt::white);
  QPainter painter(&image_);
  painter_.keepLabelsOff({withoutLabels});
  painter_.paint(painter, map, key.size, key.devicePixelRatio, quality);
  key_ = key;
  quality_ = quality;
  shown_ = MapView(map, key.size).toMap(QRectF(QPointF(0, 0), QSizeF(key.size)));
  const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  if (quality == Quality::best) {
    bestMilliseconds_ = milliseconds;
  } else if (bestMilliseconds_ > 0) {
    fastShare_ = milliseconds / bestMilliseconds_;
  }
  ++renderCount_;
}

std::vector<PaintedText> MapPicture::texts(const Map& map, const Key& key, const QRectF& withoutLabels) {
  TextRecorder recorder(key.size);
  QPainter painter(&recorder);
  painter_.keepLabelsOff({withoutLabels});
  painter_.paint(painter, map, key.size, key.devicePixelRatio, Quality::best);
  painter.end();
  return recorder.texts();
}

std::optional<Quality> MapPicture::qualityForMoving() const {
  if (bestMilliseconds_ <= kFrameMilliseconds) return Quality::best;
  if (bestMilliseconds_ * fastShare_ <= kFrameMilliseconds) return Quality::fast;
  return std::nullopt;
}

bool MapPicture::covers(const Map& map, QSizeF size) const {
  constexpr double kRounding = 0.5;  // pixels
  if (isEmpty()) return false;
  const QRectF place = MapView(map, size).toPixels(shown_).adjusted(-kRounding, -kRounding, kRounding, kRounding);
  return place.contains(QRectF(QPointF(0, 0), size));
}

void MapPicture::paint(QPainter& painter, const Map& map, QSizeF size) const {
  constexpr double kSame = 1e-3;  // pixels
  const QRectF place = MapView(map, size).toPixels(shown_);
  const QSizeF other = place.size() - size;
  // What only rounding has moved is copied, not scaled.
  if (std::abs(other.width()) + std::abs(other.height()) + std::abs(place.x()) + std::abs(place.y()) < kSame) {
    painter.drawImage(QPointF(0, 0), image_);
    return;
  }
  if (place.size() != size) painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(place, image_);
}

}  // namespace motor
