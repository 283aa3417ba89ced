#pragma once

#include "forms/control.h"

namespace forms {

// Decoration: a rectangle with a fill and a border.
class Shape : public Control {
 public:
  using Control::Control;
};

// Where the engine's map window lies.
class PictureBox : public Control {
 public:
  using Control::Control;
};

}  // namespace forms
