#pragma once

#include <QFont>
#include <QPainter>
#include <QSizeF>
#include <QStringList>

#include "motor/language/styles.h"

namespace motor {

// Lines of text in a map font, with a halo: the font's own where it asks for one, else a faint one that keeps the
// letters legible on whatever lies below.
class HaloText {
 public:
  // `pixels` is the letters' height in logical pixels, or 0 for the font's own size.
  HaloText(QStringList lines, const Font& font, double pixels = 0);

  [[nodiscard]] QSizeF size() const { return size_; }
  // With the top left of the text's box at `corner`; the lines left, right or centred within the box.
  void paint(QPainter& painter, QPointF corner, Qt::Alignment alignment) const;

 private:
  QStringList lines_;
  QFont font_;
  QColor fore_;
  QColor halo_;
  double haloWidth_;
  double lineHeight_;
  QSizeF size_;
};

}  // namespace motor
