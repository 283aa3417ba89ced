#pragma once

#include <QRect>
#include <QSize>

#include "hosts/desktop/looks.h"

namespace desktop {

// The smallest size, without its frame, at which a form's window has room for what lies in it; empty where the program
// does not mind.
[[nodiscard]] QSize smallestSize(FormLook look);

// Where a form's window first stands on the screen, without its frame: the working window uses most of the screen, at
// least the size it is stored with where there is room for that and a usual frame; the others have their stored size,
// in the middle.
[[nodiscard]] QRect firstPlace(FormLook look, QSize stored, const QRect& screen);

// How much smaller than usual all must be drawn for the working window to have room on the screen: 1 where it has, and
// never so small that nothing can be read.
[[nodiscard]] double scaleFor(QSize screen);

}  // namespace desktop
