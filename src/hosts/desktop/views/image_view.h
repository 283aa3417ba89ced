#pragma once

#include "forms/image.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

// A picture: a toolbar button where the program listens to clicks on it, else decoration.
class ImageView : public ControlView {
 public:
  ImageView(forms::Image& image, QWidget& parent, screen::ProgramCalls& calls);
  // Marks the button of the tool in hand.
  void setCurrentPicture(const std::string& picture);

 private:
  forms::Image& image_;
};

}  // namespace desktop
