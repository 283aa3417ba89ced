#pragma once

#include <QRect>
#include <QSize>

#include "forms/form.h"
#include "hosts/screen/looks.h"

namespace desktop {

// The smallest size, without its frame, at which a form's window has room for what lies in it; empty where the program
// does not mind.
[[nodiscard]] QSize smallestSize(screen::FormLook look);

// Where a form's window first stands on the screen, without its frame: the working window uses most of the screen, at
// least the size it is stored with where there is room for that and a usual frame; the others have their stored size,
// in the middle.
[[nodiscard]] QRect firstPlace(screen::FormLook look, QSize stored, const QRect& screen);

// The size, without its frame, at which a palette ends a little beyond its controls: with its frame it is about as high
// as it is stored, and what it lies in front of is covered no more than needed.
[[nodiscard]] QSize paletteSize(const forms::Form& palette);

// The place next to `wanted` at which a window with its frame is seen whole; its top left part where the screen is too
// small.
[[nodiscard]] QPoint onScreen(QPoint wanted, QSize withFrame, const QRect& screen);

// How much smaller than usual all must be drawn for the working window to have room on the screen: 1 where it has, and
// never so small that nothing can be read.
[[nodiscard]] double scaleFor(QSize screen);

}  // namespace desktop
