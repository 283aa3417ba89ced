#pragma once

#include <string>

#include "hosts/windows/drawing/canvas.h"

namespace windows {

enum class Across { left, centre, right };

// Text that is never clipped: it breaks at blanks, then shrinks, and is cut only as the last resort. It stands in the
// middle of the rectangle's height.
void drawFitted(Canvas& canvas, const std::wstring& text, const RECT& rect, const forms::FontSpec& font,
                forms::Color color, Across across);

}  // namespace windows
