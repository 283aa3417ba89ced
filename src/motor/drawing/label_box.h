#pragma once

#include <QPointF>
#include <QRectF>
#include <array>

namespace motor {

// The room that a label takes on a picture, which may be turned; in pixels.
class LabelBox {
 public:
  // An upright box.
  explicit LabelBox(const QRectF& box) : LabelBox(box, {0, 0}, 0) {}
  // A box turned about `pivot`, to which its own coordinates are relative, by degrees counter-clockwise.
  LabelBox(const QRectF& box, QPointF pivot, double degrees);

  // The upright box around it.
  [[nodiscard]] QRectF bounds() const { return bounds_; }
  // Whether two boxes share more than an edge (by the axes that separate them).
  [[nodiscard]] bool intersects(const LabelBox& other) const;

 private:
  using Corners = std::array<QPointF, 4>;
  [[nodiscard]] static bool isSeparatedBySides(const Corners& a, const Corners& b);

  Corners corners_;
  bool isUpright_;
  QRectF bounds_;
};

}  // namespace motor
