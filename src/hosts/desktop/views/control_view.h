#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <string>

#include "forms/control.h"
#include "forms/tree_view.h"
#include "hosts/desktop/program_calls.h"

namespace desktop {

// One control on the screen: a widget that shows the model and tells it what the user does. The widget belongs to its
// parent widget; a view may have none (a timer).
class ControlView : public QObject {
 public:
  ControlView(forms::Control& control, ProgramCalls& calls) : control_(control), calls_(calls) {}

  [[nodiscard]] forms::Control& control() const { return control_; }
  [[nodiscard]] QWidget* widget() const { return widget_; }

  // Shows what the model now holds.
  virtual void sync(forms::Property property);
  // Shows everything that the model holds.
  void syncAll();
  // The page that holds the control may have changed.
  void syncVisible();

  virtual void itemAdded(const std::string& /*item*/) {}
  virtual void cleared() {}
  virtual void nodeAdded(const forms::Node& /*node*/) {}
  virtual void nodeExpanded(const forms::Node& /*node*/) {}
  // A page of the application folder is to be shown; nothing outside the folder is read for it.
  virtual void navigated(const std::string& /*path*/, const std::string& /*applicationFolder*/) {}

  // True for what a user must see while a long handler runs: its writes are painted at once.
  [[nodiscard]] virtual bool paintsAtOnce() const { return false; }

 protected:
  // Adopts the widget: place, name, pointer and focus are seen to from here on.
  void adopt(QWidget* widget);
  // Reports pointer and focus on another widget that stands for the control (a tab row inside it).
  void watch(QWidget* widget);

  // Tells the model what the user did; nothing when its form is not loaded.
  void act(const ProgramCalls::Action& action);
  void actWhenFree(const ProgramCalls::Action& action);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  forms::Control& control_;
  ProgramCalls& calls_;
  QPointer<QWidget> widget_;
};

// What assistive tools call a control: its own name for them, else its caption or tool tip.
[[nodiscard]] QString accessibleName(const forms::Control& control);

}  // namespace desktop
