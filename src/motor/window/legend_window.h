#pragma once

#include <QWidget>

#include "motor/session/map_window.h"

namespace motor {

// The legend of a map in a small window of its own. The session hears of it when the user closes it.
class LegendWindow : public QWidget {
 public:
  LegendWindow(MapWindow& window, QWidget* parent);

  [[nodiscard]] bool shows(const MapWindow& window) const { return &window_ == &window; }
  // The map or its layers have changed.
  void refresh();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  MapWindow& window_;
};

}  // namespace motor
