#include "hosts/desktop/views/image_view.h"

#include "hosts/desktop/views/picture_widget.h"
#include "hosts/desktop/views/tool_button.h"

namespace desktop {

ImageView::ImageView(forms::Image& image, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(image, calls), image_(image) {
  if (!image.Click.hasHandlers()) {
    adopt(new PictureWidget(image.picture, parent));
    return;
  }
  auto* button = new ToolButton(image.picture, parent);
  connect(button, &ToolButton::clicked, this, [this] { act([this] { image_.userClick(); }); });
  adopt(button);
}

void ImageView::setCurrentPicture(const std::string& picture) {
  if (auto* button = dynamic_cast<ToolButton*>(widget())) button->setCurrent(image_.picture == picture);
}

}  // namespace desktop
