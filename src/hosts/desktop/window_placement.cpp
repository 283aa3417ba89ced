#include "hosts/desktop/window_placement.h"

namespace desktop {
namespace {

constexpr double kShareOfScreen = 0.92;

}  // namespace

QRect firstPlace(FormLook look, QSize stored, const QRect& screen) {
  QSize size = stored;
  if (look == FormLook::window) size = stored.expandedTo(screen.size() * kShareOfScreen).boundedTo(screen.size());
  QRect place(QPoint(), size);
  place.moveCenter(screen.center());
  place.moveTopLeft({qMax(place.left(), screen.left()), qMax(place.top(), screen.top())});
  return place;
}

}  // namespace desktop
