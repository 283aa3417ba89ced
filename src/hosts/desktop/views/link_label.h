#pragma once

#include "hosts/desktop/views/pointed_button.h"
#include "hosts/screen/looks.h"

namespace desktop {

// A label to click: an entry of the menu on the header, of one of its pop-up frames, or a link in the window.
class LinkLabel : public PointedButton {
 public:
  LinkLabel(screen::LabelLook look, QWidget& parent);
  void setCaption(const QString& caption);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QRect lightRect() const;

  screen::LabelLook look_;
  QString caption_;  // not the button's text, in which "&" marks an access key
};

}  // namespace desktop
