#include "hosts/desktop/views/option_view.h"

#include <QKeyEvent>
#include <QRadioButton>
#include <QSignalBlocker>

namespace desktop {
namespace {

// The arrow keys choose the neighbour, as a click on it does.
class Option : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
      case Qt::Key_Down:
      case Qt::Key_Right:
        return chooseNeighbour(1);
      case Qt::Key_Up:
      case Qt::Key_Left:
        return chooseNeighbour(-1);
      default:
        QRadioButton::keyPressEvent(event);
    }
  }

 private:
  void chooseNeighbour(int step) {
    QList<QRadioButton*> group;
    for (auto* option : parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly)) {
      if (option->isEnabled() && option->isVisible()) group.append(option);
    }
    const qsizetype to = (group.indexOf(this) + step + group.size()) % group.size();
    if (group[to] == this) return;
    group[to]->setFocus(Qt::TabFocusReason);
    group[to]->click();
  }
};

}  // namespace

OptionView::OptionView(forms::OptionButton& option, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(option, calls), option_(option) {
  auto* button = new Option(&parent);
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
