#include "hosts/desktop/views/frame_view.h"

#include <QPainter>

#include "hosts/desktop/theme.h"
#include "hosts/screen/pop_up_frames.h"

namespace desktop {
namespace {

constexpr int kVeilStrength = 150;  // of 255

enum class FrameLook { group, popUp, veil };

FrameLook lookOf(const forms::Frame& frame) {
  if (frame.container() != nullptr) return FrameLook::group;
  return screen::isPopUp(frame) ? FrameLook::popUp : FrameLook::veil;
}

class FrameWidget : public QWidget {
 public:
  FrameWidget(FrameLook look, QWidget& parent) : QWidget(&parent), look_(look) {}
  void setCaption(const QString& caption) {
    caption_ = caption;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (look_ == FrameLook::veil) {
      QColor veil = theme::kPaper;
      veil.setAlpha(kVeilStrength);
      painter.fillRect(rect(), veil);
    } else if (look_ == FrameLook::popUp) {
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

  FrameLook look_;
  QString caption_;
};

}  // namespace

FrameView::FrameView(forms::Frame& frame, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(frame, calls), frame_(frame) {
  adopt(new FrameWidget(lookOf(frame), parent));
}

bool FrameView::isVeil() const { return lookOf(frame_) == FrameLook::veil; }

bool FrameView::paintsAtOnce() const { return isVeil(); }

void FrameView::sync(forms::Property property) {
  if (property != forms::Property::Caption) return ControlView::sync(property);
  if (auto* frame = dynamic_cast<FrameWidget*>(widget())) frame->setCaption(QString::fromStdString(frame_.caption()));
}

}  // namespace desktop
