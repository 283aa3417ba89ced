#include "motor/drawing/label_box.h"

#include <QTransform>
#include <algorithm>

namespace motor {

LabelBox::LabelBox(const QRectF& box, QPointF pivot, double degrees) : isUpright_(degrees == 0) {
  const QTransform place = QTransform::fromTranslate(pivot.x(), pivot.y()).rotate(-degrees);
  corners_ = {place.map(box.topLeft()), place.map(box.topRight()), place.map(box.bottomRight()),
              place.map(box.bottomLeft())};
  bounds_ = place.mapRect(box);
}

// Whether a line along a side of `a` keeps the two apart.
bool LabelBox::isSeparatedBySides(const Corners& a, const Corners& b) {
  for (std::size_t i = 0; i < 2; ++i) {
    const QPointF axis = a[i + 1] - a[i];
    const auto along = [axis](QPointF p, QPointF q) {
      return QPointF::dotProduct(p, axis) < QPointF::dotProduct(q, axis);
    };
    const auto [leastA, mostA] = std::minmax_element(a.begin(), a.end(), along);
    const auto [leastB, mostB] = std::minmax_element(b.begin(), b.end(), along);
    if (!along(*leastA, *mostB) || !along(*leastB, *mostA)) return true;
  }
  return false;
}

bool LabelBox::intersects(const LabelBox& other) const {
  if (!bounds_.intersects(other.bounds_)) return false;
  if (isUpright_ && other.isUpright_) return true;
  return !isSeparatedBySides(corners_, other.corners_) && !isSeparatedBySides(other.corners_, corners_);
}

}  // namespace motor
