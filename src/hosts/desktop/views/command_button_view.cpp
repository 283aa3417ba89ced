#include "hosts/desktop/views/command_button_view.h"

#include <QPushButton>

namespace desktop {

CommandButtonView::CommandButtonView(forms::CommandButton& button, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(button, calls), button_(button) {
  auto* shown = new QPushButton(&parent);
  connect(shown, &QPushButton::clicked, this, [this] { act([this] { button_.userClick(); }); });
  adopt(shown);
}

void CommandButtonView::sync(forms::Property property) {
  if (property != forms::Property::Caption) return ControlView::sync(property);
  if (auto* shown = qobject_cast<QPushButton*>(widget())) shown->setText(QString::fromStdString(button_.caption()));
}

}  // namespace desktop
