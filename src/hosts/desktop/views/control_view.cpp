#include "hosts/desktop/views/control_view.h"

#include <QFocusEvent>
#include <QSinglePointEvent>

#include "forms/form.h"
#include "forms/label.h"
#include "hosts/desktop/keyboard_focus.h"
#include "hosts/desktop/theme.h"
#include "hosts/desktop/twips.h"
#include "hosts/screen/pop_up_frames.h"

namespace desktop {
namespace {

// Whether the pointer is on the widget itself, not on one that lies in it: what a child lets pass reaches its parents
// too.
bool isOnItself(const QWidget& widget, const QEvent& event) {
  return widget.childAt(static_cast<const QSinglePointEvent&>(event).position().toPoint()) == nullptr;
}

}  // namespace

void ControlView::sync(forms::Property property) {
  if (widget_ == nullptr) return;
  switch (property) {
    case forms::Property::Visible:
      syncVisible();
      break;
    case forms::Property::Enabled:
      widget_->setEnabled(control_.enabled());
      break;
    case forms::Property::Left:
    case forms::Property::Top:
    case forms::Property::Width:
    case forms::Property::Height:
      widget_->setGeometry(pixelRect(control_));
      break;
    default:
      break;
  }
}

void ControlView::syncVisible() {
  if (widget_ == nullptr) return;
  const forms::Control* container = control_.container();
  const bool onPage = container == nullptr || container->showsPage(control_.page());
  widget_->setVisible(control_.visible() && onPage);
}

void ControlView::adopt(QWidget* widget) {
  widget_ = widget;
  widget->setObjectName(QString::fromStdString(control_.name()));
  widget->setFont(theme::font(control_.font));
  widget->setToolTip(QString::fromStdString(control_.toolTipText));
  widget->setAccessibleName(accessibleName(control_));
  watch(widget);
}

void ControlView::watch(QWidget* widget) {
  widget->setMouseTracking(true);
  widget->installEventFilter(this);
}

void ControlView::act(const screen::ProgramCalls::Action& action) {
  if (control_.form().isLoaded()) calls_.run(action);
}

void ControlView::actWhenFree(const screen::ProgramCalls::Action& action) {
  forms::Form& form = control_.form();
  calls_.runWhenFree([&form, action] {
    if (form.isLoaded()) action();
  });
}

bool ControlView::eventFilter(QObject* watched, QEvent* event) {
  forms::Control& control = control_;
  switch (event->type()) {
    case QEvent::Enter:
    case QEvent::MouseMove:
      if (control.MouseMove.hasHandlers() && isOnItself(*static_cast<QWidget*>(watched), *event)) {
        act([&control] { screen::pointAt(control); });
      }
      break;
    case QEvent::FocusIn:
      // The keyboard's way of pointing at something; inside a handler it is the program that moves the focus.
      if (isKeyboardFocus(*static_cast<QFocusEvent*>(event)) && !calls_.isBusy() && control.MouseMove.hasHandlers()) {
        act([&control] { screen::pointAt(control); });
      }
      if (control.GotFocus.hasHandlers() && !isReturningFocus(*static_cast<QFocusEvent*>(event))) {
        actWhenFree([&control] { control.userFocus(); });
      }
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

QString accessibleName(const forms::Control& control) {
  std::string name = control.accessibleName;
  const auto* captioned = dynamic_cast<const forms::Captioned*>(&control);
  if (name.empty() && captioned != nullptr) name = captioned->caption();
  if (name.empty()) name = control.toolTipText;
  return QString::fromStdString(name).trimmed();
}

}  // namespace desktop
