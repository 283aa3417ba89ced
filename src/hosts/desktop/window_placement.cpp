#include "hosts/desktop/window_placement.h"

#include "hosts/desktop/drawn_size.h"
#include "hosts/desktop/twips.h"
#include "motor/window/room_on_screen.h"

namespace desktop {

using motor::kUsualFrame;

namespace {

constexpr double kShareOfScreen = 0.92;
constexpr QSize kSmallestWindow(1000, 680);
constexpr double kSmallestScale = 0.5;
constexpr int kPaletteMargin = 8;  // right of its controls and below them

}  // namespace

QSize smallestSize(screen::FormLook look) {
  return look == screen::FormLook::window ? scaled(kSmallestWindow) : QSize(0, 0);
}

QRect firstPlace(screen::FormLook look, QSize stored, const QRect& screen) {
  QSize size = stored;
  if (look == screen::FormLook::window) {
    size = stored.expandedTo(screen.size() * kShareOfScreen).boundedTo(screen.size() - kUsualFrame);
    size = size.expandedTo(scaled(kSmallestWindow));
  }
  QRect place(QPoint(), size);
  place.moveCenter(screen.center());
  if (look == screen::FormLook::window) place.translate(-kUsualFrame.width() / 2, -kUsualFrame.height() / 2);
  place.moveTopLeft({qMax(place.left(), screen.left()), qMax(place.top(), screen.top())});
  return place;
}

QSize paletteSize(const forms::Form& palette) {
  QRect controls;
  for (const forms::Control* control : palette.controls()) {
    if (control->container() == nullptr) controls |= pixelRect(*control);
  }
  return {controls.right() + 1 + scaled(kPaletteMargin), controls.bottom() + 1 + scaled(kPaletteMargin)};
}

QPoint onScreen(QPoint wanted, QSize withFrame, const QRect& screen) {
  const QPoint last(screen.right() + 1 - withFrame.width(), screen.bottom() + 1 - withFrame.height());
  return {qMax(screen.left(), qMin(wanted.x(), last.x())), qMax(screen.top(), qMin(wanted.y(), last.y()))};
}

double scaleFor(QSize screen) {
  const QSize room = screen - kUsualFrame;
  const double across = static_cast<double>(room.width()) / kSmallestWindow.width();
  const double down = static_cast<double>(room.height()) / kSmallestWindow.height();
  return qBound(kSmallestScale, qMin(across, down), 1.0);
}

}  // namespace desktop
