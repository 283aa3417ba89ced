#include "hosts/desktop/views/picture_box_view.h"

#include <QPainter>
#include <QPalette>

#include "hosts/desktop/theme.h"

namespace desktop {
namespace {

class Sheet : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), theme::kPaper);
  }
};

}  // namespace

PictureBoxView::PictureBoxView(forms::PictureBox& box, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(box, calls) {
  adopt(new Sheet(&parent));
  // The map's ring is that of all else that has the keyboard.
  QPalette colours = widget()->palette();
  colours.setColor(QPalette::Highlight, theme::kAccent);
  widget()->setPalette(colours);
}

}  // namespace desktop
