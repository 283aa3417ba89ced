#pragma once

#include "forms/form.h"

namespace screen {

// Whether the control is a pop-up frame: one that lies on the form itself and holds controls.
[[nodiscard]] bool isPopUp(const forms::Control& control);
// How many pop-up frames of the form are visible.
[[nodiscard]] int openPopUps(const forms::Form& form);

// The pointer comes to the control. One pop-up frame is open at a time: where the control's handler opens another one
// beside it, the pointer first crosses the form, which closes both, and comes to the control again.
void pointAt(forms::Control& control);

}  // namespace screen
