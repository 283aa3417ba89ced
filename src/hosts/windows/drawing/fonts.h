#pragma once

#include "forms/control.h"
#include "hosts/windows/drawing/scale.h"
#include "hosts/windows/win32/handles.h"

namespace windows {

// The font of a control at a window's scale.
[[nodiscard]] FontHandle makeFont(const forms::FontSpec& spec, const Scale& scale);

}  // namespace windows
