#include "motor/window/legend_window.h"

#include <QCloseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "motor/window/room_on_screen.h"

namespace motor {

namespace {

constexpr int kTitleRoom = 170;  // pixels that a title bar needs to show the title beside its buttons

}  // namespace

void LegendSheet::setLegend(Legend legend) {
  legend_ = std::move(legend);
  setFixedSize(legend_.size().expandedTo({kTitleRoom, 0}));
  update();
}

void LegendSheet::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  legend_.paint(painter, devicePixelRatioF());
}

LegendWindow::LegendWindow(MapWindow& window, QWidget* parent)
    : QScrollArea(parent), window_(window), sheet_(new LegendSheet) {
  setWindowFlags(Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
  setWindowTitle(QStringLiteral("Leyenda"));
  setAccessibleName(QStringLiteral("Leyenda"));
  setFrameShape(QFrame::NoFrame);
  setWidget(sheet_);
  refresh();
}

void LegendWindow::refresh() {
  themes_.dropUnused();
  sheet_->setLegend(Legend(legendSections(window_.map(), themes_)));
  const QSize room = roomOnScreen(*this);
  QSize size = sheet_->size();
  if (size.height() > room.height()) size.rwidth() += verticalScrollBar()->sizeHint().width();
  setFixedSize(size.boundedTo(room));
  if (isVisible()) move(seenWholeNear(pos()));
}

void LegendWindow::placeAt(QPoint corner) {
  // A desktop that is just putting a frame around it would take the corner for that of what is inside.
  const bool waitsForFrame = isVisible() && frameGeometry() == geometry();
  if (waitsForFrame) {
    hide();
    destroy();
  }
  move(seenWholeNear(corner));
  if (waitsForFrame) show();
}

QPoint LegendWindow::seenWholeNear(QPoint corner) const {
  const QRect room = screen()->availableGeometry();
  const QSize frame = isVisible() ? frameGeometry().size() : size() + kUsualFrame;
  const QPoint last(room.right() - frame.width() + 1, room.bottom() - frame.height() + 1);
  return {std::clamp(corner.x(), room.left(), std::max(room.left(), last.x())),
          std::clamp(corner.y(), room.top(), std::max(room.top(), last.y()))};
}

void LegendWindow::closeEvent(QCloseEvent* event) {
  window_.legendClosed();
  event->accept();
}

}  // namespace motor
