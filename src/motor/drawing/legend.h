#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QSize>
#include <QString>
#include <vector>

#include "motor/drawing/legend_sections.h"
#include "motor/drawing/theme.h"
#include "motor/map/map.h"

namespace motor {

// The legend of a map, laid out: `legendSections` one below the other. It is as large as its texts need and cuts none:
// long texts are broken between words, a word that is wider than a legend may be between letters. Letters are at most
// 36 points high.
class Legend {
 public:
  explicit Legend(const std::vector<LegendSection>& sections);

  // The room it takes in logical pixels.
  [[nodiscard]] QSize size() const { return size_; }
  // Paints it from the painter's origin on.
  void paint(QPainter& painter, double devicePixelRatio) const;

 private:
  struct PlacedText {
    QString text;
    QFont font;
    QColor colour;
    QPointF start;  // on the baseline
  };
  struct PlacedSwatch {
    LegendSwatch swatch;
    QRectF box;
  };
  struct PlacedBorder {
    Pen pen;
    double top;
    double bottom;
  };
  // Places a text from a top left corner on, broken into lines where it is too wide; gives the bottom.
  double place(const QString& text, const QFont& font, const QColor& colour, QPointF corner);
  double placeHeading(const LegendSection& section, double top);
  void placeLine(const LegendLine& line, const Font& font, double swatchWidth, double top, double height);
  double placeLines(const LegendSection& section, double top);
  void paintBorder(QPainter& painter, const PlacedBorder& border) const;

  std::vector<PlacedText> texts_;
  std::vector<PlacedSwatch> swatches_;
  std::vector<PlacedBorder> borders_;
  double right_ = 0;
  QSize size_;
};

// The legend of a map on white, up to 32,000 pixels high.
[[nodiscard]] QImage renderLegend(const Map& map, double devicePixelRatio);

}  // namespace motor
