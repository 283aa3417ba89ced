#include "hosts/desktop/views/notice.h"

#include <QPainter>

#include "hosts/desktop/drawn_size.h"
#include "hosts/desktop/theme.h"
#include "hosts/desktop/views/text_fit.h"

namespace desktop {
namespace {

constexpr int kTallest = 120;  // a notice higher than this veils
constexpr int kInset = 8;
constexpr double kStripe = 4;

}  // namespace

Notice::Notice(QWidget& parent) : QLabel(&parent) { setTextFormat(Qt::PlainText); }

void Notice::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.setPen(QPen(theme::kBorder, 1));
  if (height() > scaled(kTallest)) {
    painter.fillRect(rect(), theme::kCard);
    return;
  }
  painter.setBrush(theme::kCard);
  painter.drawRoundedRect(box, theme::kRadius, theme::kRadius);
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme::kAccent);
  painter.drawRoundedRect(QRectF(0, 0, kStripe, height()), kStripe / 2, kStripe / 2);
  const QRect inside = rect().adjusted(kInset, 0, -kInset, 0);
  const FittedText fitted = fitText(text(), font(), inside.size());
  painter.setFont(fitted.font);
  painter.setPen(theme::kNavy);
  painter.drawText(inside, Qt::AlignCenter | Qt::TextWordWrap, fitted.text);
}

}  // namespace desktop
