#include "hosts/desktop/palette_front.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

namespace desktop {

PaletteFront::PaletteFront(QWidget& palette) : QObject(&palette), palette_(palette) { qApp->installEventFilter(this); }

bool PaletteFront::isBeside(const QWidget& window) const {
  if (&window == &palette_ || window.windowType() != Qt::Tool) return false;
  if (window.parentWidget() == nullptr || palette_.parentWidget() == nullptr) return false;
  return window.parentWidget()->window() == palette_.parentWidget()->window();
}

// Raised when what the window itself does on the way to the front is over.
bool PaletteFront::eventFilter(QObject* watched, QEvent* event) {
  const bool comesToFront = event->type() == QEvent::Show || event->type() == QEvent::WindowActivate;
  if (!comesToFront || !watched->isWidgetType() || !isBeside(*static_cast<QWidget*>(watched))) return false;
  QTimer::singleShot(0, this, [this] {
    if (palette_.isVisible()) palette_.raise();
  });
  return false;
}

}  // namespace desktop
