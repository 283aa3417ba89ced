#pragma once

#include <memory>

#include "hosts/windows/views/control_view.h"

namespace windows {

// The view of a control, or null for one that is never seen. `parent` is the window that it is to lie in.
[[nodiscard]] std::unique_ptr<ControlView> makeView(forms::Control& control, ViewContext& context, HWND parent);

}  // namespace windows
