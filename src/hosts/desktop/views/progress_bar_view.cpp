#include "hosts/desktop/views/progress_bar_view.h"

#include <QPainter>
#include <QProgressBar>

#include "hosts/desktop/theme.h"

namespace desktop {
namespace {

class Bar : public QProgressBar {
 public:
  using QProgressBar::QProgressBar;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::kCard);
    painter.drawRect(rect());
    const QRectF groove = QRectF(rect()).adjusted(kInset, kInset, -kInset, -kInset);
    const double rounding = groove.height() / 2;
    painter.setBrush(theme::kNavyTint);
    painter.drawRoundedRect(groove, rounding, rounding);
    const double share = static_cast<double>(value() - minimum()) / (maximum() - minimum());
    if (share <= 0) return;
    painter.setBrush(theme::kAccent);
    const double length = qMax(groove.height(), groove.width() * share);
    painter.drawRoundedRect(QRectF(groove.topLeft(), QSizeF(length, groove.height())), rounding, rounding);
  }

 private:
  static constexpr double kInset = 3;
};

}  // namespace

ProgressBarView::ProgressBarView(forms::ProgressBar& bar, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(bar, calls), bar_(bar) {
  auto* shown = new Bar(&parent);
  shown->setRange(0, 100);
  adopt(shown);
}

void ProgressBarView::sync(forms::Property property) {
  if (property != forms::Property::Value) return ControlView::sync(property);
  if (auto* bar = qobject_cast<QProgressBar*>(widget())) bar->setValue(qRound(bar_.value()));
}

}  // namespace desktop
