#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <string>

#include "forms/control.h"
#include "hosts/screen/displays.h"
#include "hosts/screen/program_calls.h"

namespace desktop {

// One control on the screen: a widget that shows the model and tells it what the user does. The widget belongs to its
// parent widget; a view may have none (a timer).
class ControlView : public QObject, public screen::ControlDisplay {
 public:
  ControlView(forms::Control& control, screen::ProgramCalls& calls) : control_(control), calls_(calls) {}

  [[nodiscard]] forms::Control& control() const { return control_; }
  [[nodiscard]] QWidget* widget() const { return widget_; }

  void sync(forms::Property property) override;
  void syncVisible() override;

 protected:
  // Adopts the widget: place, name, pointer and focus are seen to from here on.
  void adopt(QWidget* widget);
  // Reports pointer and focus on another widget that stands for the control (a tab row inside it).
  void watch(QWidget* widget);

  // Tells the model what the user did; nothing when its form is not loaded.
  void act(const screen::ProgramCalls::Action& action);
  void actWhenFree(const screen::ProgramCalls::Action& action);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  forms::Control& control_;
  screen::ProgramCalls& calls_;
  QPointer<QWidget> widget_;
};

// What assistive tools call a control: its own name for them, else its caption or tool tip.
[[nodiscard]] QString accessibleName(const forms::Control& control);

}  // namespace desktop
