#include "hosts/desktop/views/tab_pages.h"

#include <QPainter>

#include "hosts/desktop/drawn_size.h"
#include "hosts/desktop/theme.h"
#include "hosts/desktop/views/tab_row.h"

namespace desktop {

TabPages::TabPages(const std::vector<std::string>& captions, QWidget& parent)
    : QWidget(&parent), row_(new TabRow(TabRow::Look::pages, captions, *this)) {
  setFocusProxy(row_);
}

void TabPages::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), theme::kPaper);  // hides what lies behind it
  const QRectF page = QRectF(rect()).adjusted(0.5, scaled(kHeadingHeight) - 0.5, -0.5, -0.5);
  painter.setPen(QPen(theme::kBorder, 1));
  painter.setBrush(theme::kCard);
  painter.drawRoundedRect(page, theme::kRadius, theme::kRadius);
}

void TabPages::resizeEvent(QResizeEvent* event) {
  row_->setGeometry(qRound(theme::kRadius), 0, qMax(0, width() - 2 * qRound(theme::kRadius)), scaled(kHeadingHeight));
  QWidget::resizeEvent(event);
}

}  // namespace desktop
