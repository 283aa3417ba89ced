#pragma once

#include <memory>
#include <span>

#include "forms/control.h"

namespace screen {

// Makes a host's views by the kinds of controls. Every view is made of its control and `Around`: what surrounds it on
// the host's screen.
template <class View, class... Around>
struct ViewMakers {
  using Made = std::unique_ptr<View>;
  // Makes the view of a control of its kind; null for any other.
  using Maker = Made (*)(forms::Control& control, Around... around);

  template <class Kind, class KindView>
  static Made make(forms::Control& control, Around... around) {
    auto* kind = dynamic_cast<Kind*>(&control);
    if (kind == nullptr) return nullptr;
    return std::make_unique<KindView>(*kind, around...);
  }

  // For kinds that look different from control to control.
  template <class Kind, Made (*choose)(Kind&, Around...)>
  static Made makeChosen(forms::Control& control, Around... around) {
    auto* kind = dynamic_cast<Kind*>(&control);
    return kind == nullptr ? nullptr : choose(*kind, around...);
  }

  // What the first maker that knows the control's kind makes; null where none does.
  static Made makeFirst(std::span<const Maker> makers, forms::Control& control, Around... around) {
    for (const Maker maker : makers) {
      if (auto view = maker(control, around...)) return view;
    }
    return nullptr;
  }
};

}  // namespace screen
