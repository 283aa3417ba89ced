#pragma once

#include <QRect>
#include <QSize>

#include "hosts/desktop/looks.h"

namespace desktop {

// Where a form's window first stands on the screen, frame included: the working window uses most of the screen, at
// least the size it is stored with where there is room for it; the others have their stored size, in the middle.
[[nodiscard]] QRect firstPlace(FormLook look, QSize stored, const QRect& screen);

}  // namespace desktop
