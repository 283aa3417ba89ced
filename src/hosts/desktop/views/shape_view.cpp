#include "hosts/desktop/views/shape_view.h"

#include <QEvent>
#include <QPainter>

#include "hosts/desktop/theme.h"
#include "hosts/screen/looks.h"

namespace desktop {
namespace {

class ShapeWidget : public QWidget {
 public:
  ShapeWidget(screen::ShapeLook look, QWidget& parent) : QWidget(&parent), look_(look) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    switch (look_) {
      case screen::ShapeLook::stage:
        painter.fillRect(rect(), theme::kPaper);
        break;
      case screen::ShapeLook::header:
        painter.fillRect(rect(), theme::kNavy);
        break;
      case screen::ShapeLook::line:
        painter.fillRect(rect(), QColor(255, 255, 255, 60));
        break;
      case screen::ShapeLook::card:
        painter.setPen(QPen(theme::kBorder, 1));
        painter.setBrush(theme::kCard);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), theme::kRadius, theme::kRadius);
        break;
    }
  }

 private:
  screen::ShapeLook look_;
};

}  // namespace

ShapeView::ShapeView(forms::Shape& shape, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(shape, calls), isHeader_(screen::lookOf(shape) == screen::ShapeLook::header) {
  adopt(new ShapeWidget(screen::lookOf(shape), parent));
  if (isHeader_) parent.installEventFilter(this);
}

void ShapeView::sync(forms::Property property) {
  ControlView::sync(property);
  if (isHeader_) spanParent();
}

bool ShapeView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && isHeader_) spanParent();
  return ControlView::eventFilter(watched, event);
}

void ShapeView::spanParent() {
  if (widget() != nullptr)
    widget()->setGeometry(0, widget()->y(), widget()->parentWidget()->width(), widget()->height());
}

}  // namespace desktop
