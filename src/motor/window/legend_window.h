#pragma once

#include <QScrollArea>
#include <QWidget>

#include "motor/drawing/legend.h"
#include "motor/session/map_window.h"

namespace motor {

// A legend as a widget of its size, or as wide as the title of its window asks for.
class LegendSheet : public QWidget {
 public:
  void setLegend(Legend legend);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Legend legend_{{}};
};

// The legend of a map in a small window of its own, as large as the legend and never larger than the screen, above the
// window that it belongs to. The session hears of it when the user closes it.
class LegendWindow : public QScrollArea {
 public:
  LegendWindow(MapWindow& window, QWidget* parent);

  [[nodiscard]] bool shows(const MapWindow& window) const { return &window_ == &window; }
  // The map or its layers have changed.
  void refresh();
  // Lies with its top left corner there, in the screen's coordinates, or as near as lets it be seen whole.
  void placeAt(QPoint corner);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  // The place nearest to a corner at which its frame is seen whole, or as much of it as the screen has room for.
  [[nodiscard]] QPoint seenWholeNear(QPoint corner) const;

  MapWindow& window_;
  Themes themes_;
  LegendSheet* sheet_;  // owned by the scroll area
};

}  // namespace motor
