#include "hosts/desktop/views/tab_row.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include "hosts/desktop/drawn_size.h"
#include "hosts/desktop/theme.h"

namespace desktop {
namespace {

constexpr int kPagePadding = 16;
constexpr double kUnderline = 3;

QFont boldened(QFont font) {
  font.setBold(true);
  return font;
}

}  // namespace

TabRow::TabRow(Look look, const std::vector<std::string>& captions, QWidget& parent) : QTabBar(&parent), look_(look) {
  setUsesScrollButtons(false);
  setElideMode(Qt::ElideNone);
  setDrawBase(false);
  setExpanding(false);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);  // a click keeps the keyboard at what was clicked
  for (const std::string& caption : captions) addTab(QString::fromStdString(caption));
}

QSize TabRow::tabSizeHint(int index) const {
  if (look_ == Look::segments) {
    const int count = qMax(1, this->count());
    return {(width() * (index + 1)) / count - (width() * index) / count, height()};
  }
  return {QFontMetrics(boldened(font())).horizontalAdvance(tabText(index)) + 2 * scaled(kPagePadding), height()};
}

QSize TabRow::minimumTabSizeHint(int index) const { return tabSizeHint(index); }

void TabRow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (look_ == Look::segments) {
    painter.setPen(QPen(theme::kBorder, 1));
    painter.setBrush(theme::kCard);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -2.5), theme::kRadius, theme::kRadius);
  }
  for (int i = 0; i < count(); ++i) {
    if (look_ == Look::segments) {
      paintSegment(painter, i);
    } else {
      paintPage(painter, i);
    }
  }
  if (!ring_.isShown()) return;
  const double radius = look_ == Look::segments ? theme::kRadius : 4;
  theme::paintFocusRing(painter, QRectF(tabRect(currentIndex())).adjusted(1, 1, -1, -1), radius);
}

void TabRow::paintPage(QPainter& painter, int index) const {
  const QRectF box(tabRect(index));
  const bool chosen = index == currentIndex();
  if (chosen) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::kCard);
    painter.drawRoundedRect(box.adjusted(0, 0, 0, theme::kRadius), theme::kRadius, theme::kRadius);
    painter.setBrush(theme::kAccent);
    const double inset = scaled(kPagePadding) - 4;
    painter.drawRoundedRect(QRectF(box.left() + inset, box.top(), box.width() - 2 * inset, kUnderline), 1.5, 1.5);
  } else if (index == hovered_) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::kNavyTint);
    painter.drawRoundedRect(box.adjusted(2, 3, -2, -3), 4, 4);
  }
  painter.setFont(chosen ? boldened(font()) : font());
  painter.setPen(chosen || index == hovered_ ? theme::kNavy : theme::kMuted);
  painter.drawText(box.adjusted(0, 2, 0, 0), Qt::AlignCenter, tabText(index));
}

void TabRow::paintSegment(QPainter& painter, int index) const {
  const QRectF box = QRectF(tabRect(index)).adjusted(3, 3, -3, -5);
  const bool chosen = index == currentIndex();
  if (chosen || index == hovered_) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(chosen ? theme::kNavy : theme::kNavyTint);
    painter.drawRoundedRect(box, 4, 4);
  }
  painter.setFont(chosen ? boldened(font()) : font());
  painter.setPen(chosen ? QColor(Qt::white) : theme::kInk);
  painter.drawText(box, Qt::AlignCenter, tabText(index));
}

// The chosen tab is painted before the program hears of it, since what it does may take a while.
void TabRow::pick(int index) {
  setCurrentIndex(index);
  repaint();
  emit picked(index);
}

void TabRow::turn(int steps) {
  if (count() > 0) pick(((currentIndex() + steps) % count() + count()) % count());
}

void TabRow::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const int index = tabAt(event->position().toPoint());
  if (index >= 0) pick(index);
}

void TabRow::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

void TabRow::mouseMoveEvent(QMouseEvent* event) {
  hovered_ = tabAt(event->position().toPoint());
  update();
}

void TabRow::leaveEvent(QEvent* event) {
  hovered_ = -1;
  update();
  QTabBar::leaveEvent(event);
}

void TabRow::focusInEvent(QFocusEvent* event) {
  ring_.focusIn(*event);
  QTabBar::focusInEvent(event);
}

void TabRow::focusOutEvent(QFocusEvent* event) {
  ring_.focusOut(*event);
  QTabBar::focusOutEvent(event);
}

void TabRow::keyPressEvent(QKeyEvent* event) {
  const int before = currentIndex();
  QTabBar::keyPressEvent(event);
  const bool again = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (currentIndex() != before || again) pick(currentIndex());
}

// The wheel passes by; a tab may open a map.
void TabRow::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace desktop
