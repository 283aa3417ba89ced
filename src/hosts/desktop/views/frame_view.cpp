#include "hosts/desktop/views/frame_view.h"

#include <QPainter>

#include "hosts/desktop/theme.h"

namespace desktop {
namespace {

constexpr int kVeilStrength = 150;  // of 255

class FrameWidget : public QWidget {
 public:
  FrameWidget(bool onForm, QWidget& parent) : QWidget(&parent), onForm_(onForm) {}
  void setCaption(const QString& caption) {
    caption_ = caption;
    update();
  }
  [[nodiscard]] bool isVeil() const { return onForm_ && children().isEmpty(); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isVeil()) {
      QColor veil = theme::kPaper;
      veil.setAlpha(kVeilStrength);
      painter.fillRect(rect(), veil);
    } else if (onForm_) {
      painter.setPen(QPen(theme::kBorder, 1));
      painter.setBrush(theme::kCard);
      painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), theme::kRadius, theme::kRadius);
    }
    if (!caption_.isEmpty()) paintCaption(painter);
  }

 private:
  void paintCaption(QPainter& painter) const {
    painter.setPen(theme::kMuted);
    painter.drawText(rect().adjusted(6, 0, -6, 0), Qt::AlignLeft | Qt::AlignTop, caption_);
  }

  bool onForm_;
  QString caption_;
};

}  // namespace

FrameView::FrameView(forms::Frame& frame, QWidget& parent, ProgramCalls& calls)
    : ControlView(frame, calls), frame_(frame) {
  adopt(new FrameWidget(frame.container() == nullptr, parent));
}

bool FrameView::paintsAtOnce() const {
  const auto* frame = dynamic_cast<const FrameWidget*>(widget());
  return frame != nullptr && frame->isVeil();
}

void FrameView::sync(forms::Property property) {
  if (property != forms::Property::Caption) return ControlView::sync(property);
  if (auto* frame = dynamic_cast<FrameWidget*>(widget())) frame->setCaption(QString::fromStdString(frame_.caption()));
}

}  // namespace desktop
