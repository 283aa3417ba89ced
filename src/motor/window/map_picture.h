#pragma once

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <cstdint>
#include <optional>
#include <vector>

#include "motor/drawing/map_painter.h"
#include "motor/map/map.h"
#include "motor/window/overlays/text_recorder.h"

namespace motor {

// The picture of a map that a window keeps, so that showing it again costs a copy. It knows what part of the world it
// shows and can stand in, moved and scaled, while the map is moving.
class MapPicture {
 public:
  // What a picture is good for.
  struct Key {
    std::uint64_t revision = 0;
    QSize size;  // logical pixels
    double devicePixelRatio = 1;
    bool operator==(const Key&) const = default;
  };

  [[nodiscard]] bool isEmpty() const { return image_.isNull(); }
  // Whether the picture is what `key` wants, at full quality.
  [[nodiscard]] bool isGoodFor(const Key& key) const { return !isEmpty() && key_ == key && quality_ == Quality::best; }
  // Whether the picture, moved and scaled, leaves nothing of the map's present view empty.
  [[nodiscard]] bool covers(const Map& map, QSizeF size) const;
  // Labels keep off `withoutLabels`, in logical pixels.
  void render(const Map& map, const Key& key, Quality quality, const QRectF& withoutLabels);
  // The texts that stand on the picture when it is painted like that.
  [[nodiscard]] std::vector<PaintedText> texts(const Map& map, const Key& key, const QRectF& withoutLabels);
  // The best quality at which the map can be painted again while it moves; none when it takes too long at any.
  [[nodiscard]] std::optional<Quality> qualityForMoving() const;

  // Paints the picture where its part of the world lies in the map's present view.
  void paint(QPainter& painter, const Map& map, QSizeF size) const;
  [[nodiscard]] int renderCount() const { return renderCount_; }

 private:
  MapPainter painter_;
  QImage image_;
  Key key_;
  Quality quality_ = Quality::best;
  Box shown_;
  double bestMilliseconds_ = 0;
  double fastShare_ = 0.5;  // of the time at its best, that painting it fast takes
  int renderCount_ = 0;
};

}  // namespace motor
