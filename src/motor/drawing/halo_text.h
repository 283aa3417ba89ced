#pragma once

#include <QFont>
#include <QList>
#include <QPainter>
#include <QPainterPath>
#include <QSizeF>
#include <QStringList>

#include "motor/language/styles.h"

namespace motor {

// Lines of text in a map font, on what keeps the letters legible whatever lies below: the box or the halo that the font
// asks for, else a faint halo. A shadow lies below them where the font has one.
class HaloText {
 public:
  // `pixels` is the letters' height in logical pixels, or 0 for the font's own size. Of more lines or letters than any
  // map has room for the first ones are taken, with an ellipsis at the end. `spacing` is from line to line, in heights
  // of a line.
  HaloText(const QStringList& lines, const Font& font, double pixels = 0, double spacing = 1);

  // With the box, where there is one.
  [[nodiscard]] QSizeF size() const { return size_; }
  // With the top left of the text's box at `corner`; the lines left, right or centred within the box.
  void paint(QPainter& painter, QPointF corner, Qt::Alignment alignment) const;

 private:
  [[nodiscard]] QList<QPointF> starts(QPointF corner, Qt::Alignment alignment) const;
  void paintGround(QPainter& painter, QPointF corner, const QPainterPath& outline) const;

  QStringList lines_;
  QFont font_;
  QColor fore_;
  QColor halo_;
  QColor box_;  // not valid without one
  QColor shadow_;
  double haloWidth_;
  double lineStep_;  // from line to line
  QSizeF size_;
};

}  // namespace motor
