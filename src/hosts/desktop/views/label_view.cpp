#include "hosts/desktop/views/label_view.h"

#include "hosts/desktop/views/link_label.h"
#include "hosts/desktop/views/plain_label.h"
#include "hosts/screen/looks.h"

namespace desktop {

LabelView::LabelView(forms::Label& label, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(label, calls), label_(label) {
  const screen::LabelLook look = screen::lookOf(label);
  if (look == screen::LabelLook::text) {
    adopt(new PlainLabel(label, parent));
    return;
  }
  auto* link = new LinkLabel(look, parent);
  connect(link, &LinkLabel::clicked, this, [this] { act([this] { label_.userClick(); }); });
  adopt(link);
}

void LabelView::sync(forms::Property property) {
  if (property != forms::Property::Caption) return ControlView::sync(property);
  const QString caption = QString::fromStdString(label_.caption());
  if (auto* link = dynamic_cast<LinkLabel*>(widget())) link->setCaption(caption);
  if (auto* plain = dynamic_cast<PlainLabel*>(widget())) plain->setText(caption);
  widget()->setAccessibleName(accessibleName(label_));
}

}  // namespace desktop
