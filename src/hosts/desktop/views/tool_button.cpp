#include "hosts/desktop/views/tool_button.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "hosts/desktop/artwork.h"
#include "hosts/desktop/drawn_size.h"
#include "hosts/desktop/focus_order.h"
#include "hosts/desktop/theme.h"

namespace desktop {
namespace {

constexpr double kRounding = 5;
constexpr double kLargestIcon = 20;
constexpr double kInset = 3;

}  // namespace

ToolButton::ToolButton(std::string picture, QWidget& parent) : PointedButton(parent), picture_(std::move(picture)) {}

void ToolButton::setCurrent(bool current) {
  current_ = current;
  setAccessibleDescription(current ? QStringLiteral("Comando actual") : QString());
  update();
}

void ToolButton::keyPressEvent(QKeyEvent* event) {
  const std::vector<QWidget*> all = toolbarAround(*window(), *this);
  const auto here = static_cast<std::size_t>(std::ranges::find(all, this) - all.begin());
  std::size_t target = 0;
  switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
      target = here + 1;
      break;
    case Qt::Key_Left:
    case Qt::Key_Up:
      target = here + all.size() - 1;
      break;
    case Qt::Key_Home:
      break;
    case Qt::Key_End:
      target = all.size() - 1;
      break;
    default:
      return PointedButton::keyPressEvent(event);
  }
  if (all.size() < 2) return PointedButton::keyPressEvent(event);
  all[target % all.size()]->setFocus(event->key() == Qt::Key_Left ? Qt::BacktabFocusReason : Qt::TabFocusReason);
}

void ToolButton::focusInEvent(QFocusEvent* event) {
  static int entries = 0;
  lastEntered_ = ++entries;
  PointedButton::focusInEvent(event);
}

void ToolButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  if (isDown()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::kBorder);
    painter.drawRoundedRect(box, kRounding, kRounding);
  } else if (current_) {
    painter.setPen(QPen(theme::kNavy, 1));
    painter.setBrush(theme::kNavyTint);
    painter.drawRoundedRect(box, kRounding, kRounding);
  } else if (isLit()) {
    painter.setPen(QPen(theme::kBorder, 1));
    painter.setBrush(theme::kShade);
    painter.drawRoundedRect(box, kRounding, kRounding);
  }
  const double side = qMin(scaled(kLargestIcon), qMin(width(), height()) - 2 * kInset);
  const QRectF icon(QPointF((width() - side) / 2, (height() - side) / 2), QSizeF(side, side));
  painter.setOpacity(isEnabled() ? 1 : 0.4);
  artwork::paint(painter, picture_, icon);
  painter.setOpacity(1);
  if (hasRing()) theme::paintFocusRing(painter, rect(), kRounding);
}

}  // namespace desktop
