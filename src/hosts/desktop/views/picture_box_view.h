#pragma once

#include "forms/shape.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

// The place of the map: an empty sheet until a map window lies in it.
class PictureBoxView : public ControlView {
 public:
  PictureBoxView(forms::PictureBox& box, QWidget& parent, screen::ProgramCalls& calls);
};

}  // namespace desktop
