#include "hosts/desktop/views/tool_button.h"

#include <QPainter>
#include <utility>

#include "hosts/desktop/artwork.h"
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
  const double side = qMin(kLargestIcon, qMin(width(), height()) - 2 * kInset);
  const QRectF icon(QPointF((width() - side) / 2, (height() - side) / 2), QSizeF(side, side));
  painter.setOpacity(isEnabled() ? 1 : 0.4);
  artwork::paint(painter, picture_, icon);
  painter.setOpacity(1);
  if (hasRing()) theme::paintFocusRing(painter, rect(), kRounding);
}

}  // namespace desktop
