#include "motor/window/legend_window.h"

#include <QCloseEvent>
#include <QPainter>

#include "motor/drawing/legend.h"

namespace motor {

LegendWindow::LegendWindow(MapWindow& window, QWidget* parent) : QWidget(parent, Qt::Tool), window_(window) {
  setWindowTitle(QStringLiteral("Leyenda"));
  setAccessibleName(QStringLiteral("Leyenda"));
  refresh();
}

void LegendWindow::refresh() {
  setFixedSize(legendSize(window_.map()));
  update();
}

void LegendWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  paintLegend(painter, window_.map(), devicePixelRatioF());
}

void LegendWindow::closeEvent(QCloseEvent* event) {
  window_.legendClosed();
  event->accept();
}

}  // namespace motor
