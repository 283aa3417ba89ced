#pragma once

#include <memory>

#include "hosts/desktop/views/control_view.h"

namespace desktop {

// The view of a control, by its kind; null for a kind that is never seen. The widget gets `parent`.
[[nodiscard]] std::unique_ptr<ControlView> makeView(forms::Control& control, QWidget& parent,
                                                    screen::ProgramCalls& calls);

}  // namespace desktop
