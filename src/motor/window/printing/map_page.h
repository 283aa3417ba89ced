#pragma once

#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <memory>

#include "motor/drawing/legend.h"
#include "motor/drawing/map_painter.h"
#include "motor/map/map.h"
#include "motor/window/printing/page_texts.h"

namespace motor {

// What a printed page has besides the map and its texts, and how large the map is.
struct PageParts {
  bool legend = true;  // where the map has a theme
  bool scaleBar = true;
  bool northArrow = true;
  bool asOnScreen = false;  // the map is as large as in its window, where the page has room for it; else as it can be
};

// A map on a page: the title, the map as the window shows it, its legend beside or below it, whichever leaves the map
// more room, with a scale bar and a north arrow; below all the source and the date. Lengths are pixels of 1/96 inch of
// paper, so letters, lines and symbols have the size that they have on the screen.
class MapPage {
 public:
  // What `painter` learns about the map serves its next pages.
  MapPage(Map map, PageTexts texts, PageParts parts,
          std::shared_ptr<MapPainter> painter = std::make_shared<MapPainter>());

  struct Layout {
    QRectF title;   // with the subtitle
    QRectF map;     // has the window's shape
    QRectF legend;  // empty without one
    QRectF footer;  // the source and the date
    double legendScale = 1;
    double ratio = 0;  // a length on the ground to that on the paper
  };
  // On a page of this size, without its margins.
  [[nodiscard]] Layout layoutFor(QSizeF page) const;

  // Paints on a page of this size from the painter's origin on; a pixel has so many of the device's.
  void paint(QPainter& painter, QSizeF page, double devicePixelRatio) const;

  [[nodiscard]] const PageTexts& texts() const { return texts_; }

  // Whether the map asks for a page that lies on its side.
  [[nodiscard]] bool isWide() const { return map_.pixelWidth > map_.pixelHeight; }

 private:
  void placeBeside(Layout& layout, const QRectF& body) const;
  void placeBelow(Layout& layout, const QRectF& body) const;
  [[nodiscard]] QSizeF mapSizeIn(QSizeF room) const;
  void paintTexts(QPainter& painter, const Layout& layout) const;
  void paintMap(QPainter& painter, const Layout& layout, double devicePixelRatio) const;

  Map map_;
  PageTexts texts_;
  PageParts parts_;
  Legend legend_;
  bool hasLegend_;
  std::shared_ptr<MapPainter> painter_;
};

}  // namespace motor
