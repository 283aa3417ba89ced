#pragma once

#include "hosts/desktop/looks.h"
#include "hosts/desktop/views/pointed_button.h"

namespace desktop {

// A label to click: an entry of the menu on the header, of one of its pop-up frames, or a link in the window.
class LinkLabel : public PointedButton {
 public:
  LinkLabel(LabelLook look, QWidget& parent);
  void setCaption(const QString& caption);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QRect lightRect() const;

  LabelLook look_;
  QString caption_;  // not the button's text, in which "&" marks an access key
};

}  // namespace desktop
