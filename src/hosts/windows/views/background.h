#pragma once

#include "forms/form.h"

namespace windows {

// The colour of the decoration that lies behind a control on its form, or of the form itself.
[[nodiscard]] forms::Color formColorBehind(const forms::Control& control);

}  // namespace windows
