#include "hosts/screen/pop_up_frames.h"

#include <algorithm>

#include "forms/label.h"

namespace screen {

bool isPopUp(const forms::Control& control) {
  if (control.container() != nullptr || dynamic_cast<const forms::Frame*>(&control) == nullptr) return false;
  return std::ranges::any_of(control.form().controls(),
                             [&control](const forms::Control* other) { return other->container() == &control; });
}

int openPopUps(const forms::Form& form) {
  return static_cast<int>(std::ranges::count_if(
      form.controls(), [](const forms::Control* control) { return control->visible() && isPopUp(*control); }));
}

void pointAt(forms::Control& control) {
  control.userMouseMove();
  forms::Form& form = control.form();
  if (openPopUps(form) < 2) return;
  form.userMouseMove();
  control.userMouseMove();
}

}  // namespace screen
