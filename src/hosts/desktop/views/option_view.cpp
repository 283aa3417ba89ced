#include "hosts/desktop/views/option_view.h"

#include <QRadioButton>
#include <QSignalBlocker>

namespace desktop {

OptionView::OptionView(forms::OptionButton& option, QWidget& parent, ProgramCalls& calls)
    : ControlView(option, calls), option_(option) {
  auto* button = new QRadioButton(&parent);
  button->setAutoExclusive(false);  // the model leaves the others
  connect(button, &QRadioButton::clicked, this, [this] {
    act([this] { option_.userRelease(); });
    sync(forms::Property::Value);
  });
  adopt(button);
}

void OptionView::sync(forms::Property property) {
  auto* button = qobject_cast<QRadioButton*>(widget());
  if (button == nullptr) return;
  const QSignalBlocker quiet(button);
  switch (property) {
    case forms::Property::Value:
      button->setChecked(option_.value());
      break;
    case forms::Property::Caption:
      button->setText(QString::fromStdString(option_.caption()));
      break;
    default:
      ControlView::sync(property);
  }
}

}  // namespace desktop
